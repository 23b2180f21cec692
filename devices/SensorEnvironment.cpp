#include "devices/SensorEnvironment.h"

#include "devices/RearCameraBackend.h"
#include "devices/SystemRearCamera.h"

#include <QStandardPaths>

#include <utility>

namespace fieldcal {

namespace {

/// A simulated module provides its own rear camera; with a real module the tablet's is used.
std::unique_ptr<PlatformCameraBackend> rearCameraBeside(std::shared_ptr<const KXLibrary> library) {
    auto system = RearCameraBackend::isIn(*library) ? nullptr : systemRearCamera();
    if (system != nullptr) return system;
    return std::make_unique<RearCameraBackend>(std::move(library));
}

}  // namespace

QString userDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/field-calibrator";
}

SensorEnvironment systemEnvironment(kxapi::LibrarySearch search) {
    SensorEnvironment environment;
    environment.loadLibrary = [search](std::string* why) { return KXLibrary::load(why, search); };
    environment.loadRotationUpdater = [search](std::string* why) { return KXRotationUpdater::load(why, search); };
    environment.services = search == kxapi::LibrarySearch::SimulatedOnly ? &PXMServiceManager::withoutService()
                                                                         : &PXMServiceManager::instance();
    environment.createPlatformCamera = [](std::shared_ptr<const KXLibrary> library) {
        return std::make_unique<CPlatformCameraControl>(rearCameraBeside(std::move(library)));
    };
    environment.now = std::chrono::steady_clock::now;
    environment.power = systemPower;
    environment.dataFolder = userDataFolder();
    return environment;
}

}  // namespace fieldcal
