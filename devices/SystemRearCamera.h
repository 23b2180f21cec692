#pragma once

#include "devices/PlatformCameraBackend.h"

#include <memory>

namespace fieldcal {

/// Returns this system's own rear camera; null where the program supports none.
std::unique_ptr<PlatformCameraBackend> systemRearCamera();

}  // namespace fieldcal
