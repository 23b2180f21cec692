#pragma once

#include "devices/ModuleLink.h"
#include "devices/PXMServiceManager.h"
#include "devices/PlatformCameraControl.h"
#include "devices/PowerState.h"
#include "kxapi/Library.h"
#include "kxapi/RotationUpdater.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace fieldcal {

/// The environment of a `Sensor`. Every member must be set, except `power`.
struct SensorEnvironment {
    /// Return null, with the reason in `why`, when there is no such library.
    std::function<std::shared_ptr<const KXLibrary>(std::string* why)> loadLibrary;
    std::function<std::shared_ptr<const KXRotationUpdater>(std::string* why)> loadRotationUpdater;
    /// Must outlive the sensor.
    PXMServiceManager* services = nullptr;
    std::function<std::unique_ptr<CPlatformCameraControl>(std::shared_ptr<const KXLibrary>)> createPlatformCamera;
    std::function<std::chrono::steady_clock::time_point()> now;
    /// The computer's supply, asked before each write into the module. Empty: always sufficient.
    std::function<std::optional<PowerState>()> power;
    /// The folder for this user's data of the program.
    QString dataFolder;
    ModuleLink::Limits limits;
};

/// Returns this user's folder for the program's data, which need not exist.
QString userDataFolder();

/// Returns the real loaders, the process's service manager, this system's rear camera and the user's data folder. With
/// `SimulatedOnly`, the vendor's service is not touched.
SensorEnvironment systemEnvironment(kxapi::LibrarySearch search = kxapi::LibrarySearch::Installed);

}  // namespace fieldcal
