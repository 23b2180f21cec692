#pragma once

#include "camera/CameraParameters.h"
#include "devices/ModuleLink.h"
#include "devices/PlatformCalibration.h"
#include "devices/Sensor.h"

#include <functional>
#include <optional>

namespace fieldcal {

/// The module's calibration as it is read out once.
struct ModuleCalibration {
    CameraParameters parameters;  ///< the rear camera's are zero without `platform`
    std::optional<PlatformCalibration> platform;
};

/// Empty: the calibration is invalid, does not fit the streams or could not be read; it has been logged and reported
/// by the link. Rear-camera data that is missing, cannot be read or is not usable is no failure.
std::optional<ModuleCalibration> readCalibration(ModuleLink& link, KXThirdCamera* third);

/// Reads the module's factory calibration into `out`, and has the sensor use it. Once, right after `Sensor::open`, on
/// the sensor's thread. False: `readCalibration` was empty, and `out` is untouched. Without a usable rear camera
/// `forceSingleCameraCalibration` is called.
bool readCameraParameters(Sensor& sensor, CameraParameters* out,
                          const std::function<void()>& forceSingleCameraCalibration);

}  // namespace fieldcal
