#pragma once

#include "camera/CameraParameters.h"
#include "devices/ModuleLink.h"
#include "devices/PlatformCalibration.h"
#include "devices/Sensor.h"

#include <functional>
#include <optional>
#include <string>

namespace fieldcal {

/// The module's calibration, read once.
struct ModuleCalibration {
    CameraParameters parameters;  ///< those of the rear camera are zero without `platform`
    std::optional<PlatformCalibration> platform;
};

/// Returns none when the calibration is invalid, does not fit the streams or could not be read; this has been logged
/// and reported by the link. Missing, unreadable or unusable data of the rear camera is not a failure.
std::optional<ModuleCalibration> readCalibration(ModuleLink& link, KXThirdCamera* third);

/// Reads the module's factory calibration into `out` and makes the sensor use it. To be called once, right after
/// `Sensor::open`, on the sensor's thread. Returns false and leaves `out` unchanged when `readCalibration` returned
/// none. Calls `forceSingleCameraCalibration` when there is no usable rear camera.
bool readCameraParameters(Sensor& sensor, CameraParameters* out,
                          const std::function<void()>& forceSingleCameraCalibration);

// Texts of the log.
/// "fxfy = [.. ..] cxcy=[.. ..] k1k2k3=[.. .. ..] p1p2=[.. ..]"; rectified models have no distortion.
std::string textOf(const CameraModel& model);
/// "R [.. .. ..] T [.. .. ..]": the three angles in degrees, then the translation in metres.
std::string textOf(const CameraExtrinsics& extrinsics);

}  // namespace fieldcal
