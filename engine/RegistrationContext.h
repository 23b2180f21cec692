#pragma once

#include "camera/CameraParameters.h"
#include "engine/RegistrationState.h"

#include <array>
#include <memory>
#include <mutex>

namespace vq {

/// The cameras under calibration, their factory extrinsics and the current registration. One per process; whoever
/// composes the program owns it and hands it to the engine by reference.
/// Take `lock` for every access once a second thread is about; it is the innermost of the engine's locks.
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

Pose poseFromExtrinsics(const fieldcal::CameraExtrinsics& extrinsics);

}  // namespace vq
