#pragma once

#include "devices/PlatformCameraBackend.h"

#include <memory>

namespace fieldcal {

/// This system's own rear camera; null where this program drives none.
std::unique_ptr<PlatformCameraBackend> systemRearCamera();

}  // namespace fieldcal
