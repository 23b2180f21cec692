#pragma once

#include "devices/ModuleLink.h"
#include "devices/PXMServiceManager.h"
#include "devices/PlatformCameraControl.h"
#include "kxapi/Library.h"
#include "kxapi/RotationUpdater.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace fieldcal {

/// What a `Sensor` finds outside itself. Every member is set.
struct SensorEnvironment {
    /// Null, and the reason in `why`, when there is no camera library.
    std::function<std::shared_ptr<const KXLibrary>(std::string* why)> loadLibrary;
    std::function<std::shared_ptr<const KXRotationUpdater>(std::string* why)> loadRotationUpdater;
    /// Outlives the sensor.
    PXMServiceManager* services = nullptr;
    std::function<std::unique_ptr<CPlatformCameraControl>(std::shared_ptr<const KXLibrary>)> createPlatformCamera;
    std::function<std::chrono::steady_clock::time_point()> now;
    /// Where this program keeps what it writes for this user.
    QString dataFolder;
    ModuleLink::Limits limits;
};

/// This user's folder for the program's data; it may not exist yet.
QString userDataFolder();

/// The real loaders, the process's service manager, this system's rear camera and the user's data folder.
SensorEnvironment systemEnvironment();

}  // namespace fieldcal
