#pragma once

#include "engine/CalibratorInterface.h"
#include "tests/engine/Frames.h"
#include "tests/engine/Scenes.h"

#include <Eigen/Core>
#include <gtest/gtest.h>

#include <memory>

namespace vq::testing {

/// An engine of its own with two small cameras, and what a user does with it.
class CalibratorRig {
public:
    explicit CalibratorRig(const Eigen::Vector3d& factoryDeg = {0.6, -0.9, 1.1}, bool platform = false) {
        CameraPair cameras = smallCameras();
        cameras.colourScaling = {1.0031F, 0.9962F};
        parameters.infrared = parameters.depth = cameras.infrared;
        parameters.inModuleColour = cameras.colour;
        parameters.inModuleScaling = cameras.colourScaling;
        parameters.depthToInModule = extrinsics(factoryDeg, {0.025F, 0.5F, -0.25F});
        parameters.outOfModuleColour = {310, 230, 300.0F, 300.0F, 150.0F, 111.0F};
        parameters.depthToOutOfModule = extrinsics({-1.5, 0.5, -0.75}, {0.0625F, -0.125F, 0.0F});
        pair = cameras;
        engine.setCameraParameters(platform);
        engine.setup();
    }

    static fieldcal::CameraExtrinsics extrinsics(const Eigen::Vector3d& anglesDeg,
                                                 const std::array<float, 3>& translation) {
        fieldcal::CameraExtrinsics result;
        const Eigen::Matrix3d rotation = rotationFromAngles(anglesDeg / kDegreesPerRadian);
        Eigen::Map<Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(result.rotation.data()) = rotation.cast<float>();
        result.translation = translation;
        return result;
    }

    ScenePair scene(const Eigen::Vector3d& trueDeg, int seed) const {
        return renderScene(pair, trueDeg / kDegreesPerRadian, seed);
    }

    CalibratorResult show(const ScenePair& still) {
        return engine.inputFramesAndCheckMovement(infraredFrame(still.infrared), colourFrame(still.colour));
    }
    /// Turns away and shows the still until the engine takes it. False when it never does.
    bool capture(const ScenePair& still) {
        std::int32_t code = show(still).code;
        for (int i = 0; i < 60 && code != ProcessImagePair; ++i) {
            ScenePair shown = still;
            // Levels that differ over four and over eight frames.
            if (code == RotateDevice) shown.colour = greyColour(still.colour.size(), i * 97 % 256);
            code = show(shown).code;
        }
        return code == ProcessImagePair;
    }
    CalibratorResult calibrateOn(const ScenePair& still) {
        EXPECT_TRUE(capture(still));
        return engine.inputImageAndTryCalibration();
    }

    Eigen::Matrix3d rotation() {
        Eigen::Matrix<float, 3, 3, Eigen::RowMajor> matrix;
        EXPECT_EQ(engine.getRotationMatrix(matrix.data()), matrix.data());
        return matrix.cast<double>();
    }
    int verified() const { return static_cast<int>(engine.calibrator().matches().infrared.size()); }
    std::size_t gridTotal() const {
        std::size_t total = 0;
        for (int cell = 0; cell < 12; ++cell)
            total += engine.calibrator().grid().cell(cell % 4, cell / 4).size();
        return total;
    }

    fieldcal::CameraParameters parameters;
    CameraPair pair;
    RegistrationContext context;
    CalibratorInterface engine{context, parameters};
};

}  // namespace vq::testing
