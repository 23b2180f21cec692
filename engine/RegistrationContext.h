#pragma once

#include "camera/CameraParameters.h"
#include "engine/RegistrationState.h"

#include <array>
#include <memory>
#include <mutex>

namespace vq {

/// The cameras under calibration, their factory extrinsics and the current registration. Owned by whoever
/// owns the engine, in the application `CalibrationLoop`, and passed to the engine by reference. As soon as several
/// threads use it, `lock` must be held for every access; it is the innermost of the engine's locks.
struct RegistrationContext {
    fieldcal::CameraModel depthModel;
    fieldcal::CameraModel infraredModel;
    fieldcal::CameraModel colourModel;
    fieldcal::ColourScaling colourScaling;
    Pose defaultExtrinsics = Pose::Zero();
    std::array<float, 3> currentAnglesDeg{};
    std::unique_ptr<RegistrationState> state = std::make_unique<RegistrationState>();
    mutable std::mutex lock;
};

inline Pose poseFromExtrinsics(const fieldcal::CameraExtrinsics& extrinsics) {
    Pose pose = Pose::Identity();
    pose.topLeftCorner<3, 3>() =
        Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(extrinsics.rotation.data());
    pose.topRightCorner<3, 1>() = Eigen::Map<const Eigen::Vector3f>(extrinsics.translation.data());
    return pose;
}

}  // namespace vq
