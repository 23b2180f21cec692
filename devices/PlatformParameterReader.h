#pragma once

#include "camera/CameraParameters.h"
#include "devices/PlatformCalibration.h"
#include "kxapi/Library.h"

namespace fieldcal {

/// The rear camera's part of the module's calibration.
struct PlatformParameters {
    PlatformCalibration calibration;
    CameraModel model;  ///< in the infrared geometry
    CameraExtrinsics extrinsics;
    ColourScaling scaling;
};

/// Returns false when something could not be read or is not usable, which has been logged.
bool readPlatformParameters(KXPlatformCamera& camera, const KXLibrary& library, const CameraModel& infrared,
                            PlatformParameters* out);

}  // namespace fieldcal
