#pragma once

#include "devices/PlatformCameraControl.h"

namespace fieldcal {

/// The friendly name of the tablet's rear camera.
inline constexpr const char* kPlatformCameraName = "HP Truevision 8MP Rear";

enum class PlatformSetup {
    Ready,
    Missing,  ///< not found, or not opened
    Issue     ///< setting up the focus or a stream failed
};

/// Finds, opens and configures the tablet's rear camera. Failures are logged.
PlatformSetup setUpPlatformCamera(CPlatformCameraControl& camera);

}  // namespace fieldcal
