#pragma once

#include "engine/CalibratorInterface.h"
#include "tests/engine/Scenes.h"

#include <Eigen/Core>
#include <gtest/gtest.h>

namespace vq::testing {

using RowMajor3f = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;

/// An engine with two small cameras, and the actions of a user.
class CalibratorRig {
public:
    explicit CalibratorRig(const Eigen::Vector3d& factoryDeg) {
        parameters.infrared = parameters.depth = cameras.infrared;
        parameters.colour[fieldcal::ColourCamera::Third].model = cameras.colour;
        parameters.colour[fieldcal::ColourCamera::Third].scaling = cameras.colourScaling;
        parameters.colour[fieldcal::ColourCamera::Third].fromDepth = extrinsics(factoryDeg, {0.025F, 0.5F, -0.25F});
        parameters.colour[fieldcal::ColourCamera::Platform].model = {310, 230, 300.0F, 300.0F, 150.0F, 111.0F};
        parameters.colour[fieldcal::ColourCamera::Platform].fromDepth =
            extrinsics({-1.5, 0.5, -0.75}, {0.0625F, -0.125F, 0.0F});
        engine.setCameraParameters(false);
        engine.setup();
    }

    ScenePair scene(const Eigen::Vector3d& trueDeg, int seed) const {
        return renderScene(cameras, trueDeg / kDegreesPerRadian, seed);
    }
    CalibratorResult show(const ScenePair& still) {
        return engine.inputFramesAndCheckMovement(frameOf<fieldcal::ImageFrame16>(still.infrared),
                                                  frameOf<fieldcal::ImageFrame32>(still.colour));
    }
    /// Moves the cameras, shows the still until the engine selects it, and tries a calibration.
    CalibratorResult calibrateOn(const ScenePair& still) {
        std::int32_t code = show(still).code;
        for (int i = 0; i < 60 && code != ProcessImagePair; ++i) {
            ScenePair shown = still;
            // Brightness levels that differ over four and over eight frames.
            const cv::Mat elsewhere(still.colour.size(), CV_8UC4, cv::Scalar::all(i * 97 % 256));
            if (code == RotateDevice) shown.colour = elsewhere;
            code = show(shown).code;
        }
        EXPECT_EQ(code, ProcessImagePair);
        return engine.inputImageAndTryCalibration();
    }

    Eigen::Matrix3d rotation() {
        RowMajor3f matrix;
        EXPECT_EQ(engine.getRotationMatrix(matrix.data()), matrix.data());
        return matrix.cast<double>();
    }
    std::vector<float> translation() {
        float out[3];
        return {engine.getTranslation(out), out + 3};
    }
    int verified() const { return static_cast<int>(core.matches().infrared.size()); }
    std::size_t gridTotal() const {
        std::size_t total = 0;
        for (int cell = 0; cell < 12; ++cell)
            total += core.grid().cell(cell % 4, cell / 4).size();
        return total;
    }

    fieldcal::CameraParameters parameters;
    CameraPair cameras = smallCameras();
    RegistrationContext context;
    CalibratorInterface engine{context, parameters};
    const SensorCalibrator& core = engine.calibrator();

private:
    static fieldcal::CameraExtrinsics extrinsics(const Eigen::Vector3d& anglesDeg, const std::array<float, 3>& offset) {
        fieldcal::CameraExtrinsics result;
        result.translation = offset;
        Eigen::Map<RowMajor3f>(result.rotation.data()) =
            rotationFromAngles(anglesDeg / kDegreesPerRadian).cast<float>();
        return result;
    }
};

}  // namespace vq::testing
