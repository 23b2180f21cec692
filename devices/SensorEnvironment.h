#pragma once

#include "devices/PXMServiceManager.h"
#include "devices/PlatformCameraControl.h"
#include "kxapi/Library.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace fieldcal {

/// What a `Sensor` finds outside itself. Every member is set.
struct SensorEnvironment {
    /// Null, and the reason in `why`, when there is no camera library.
    std::function<std::shared_ptr<const KXLibrary>(std::string* why)> loadLibrary;
    /// Outlives the sensor.
    PXMServiceManager* services = nullptr;
    std::function<std::unique_ptr<CPlatformCameraControl>(std::shared_ptr<const KXLibrary>)> createPlatformCamera;
    std::function<std::chrono::steady_clock::time_point()> now;
};

/// The real loader, the process's service manager and this system's rear camera.
SensorEnvironment systemEnvironment();

}  // namespace fieldcal
