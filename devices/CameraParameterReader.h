#pragma once

#include "camera/CameraParameters.h"
#include "devices/Sensor.h"

#include <functional>

namespace fieldcal {

/// Reads the module's factory calibration into `out`, and tells the sensor the scaled picture sizes and the rear
/// camera's rectification. Once, right after `Sensor::open`, on the sensor's thread.
///
/// False: the calibration is invalid or could not be read; it has been logged and reported by the sensor, and `out`
/// is untouched. Rear-camera data that is missing, cannot be read or is not usable is no failure: the sensor goes on
/// without the rear camera, its records are zero and `forceSingleCameraCalibration` is called.
bool readCameraParameters(Sensor& sensor, CameraParameters* out,
                          const std::function<void()>& forceSingleCameraCalibration);

}  // namespace fieldcal
