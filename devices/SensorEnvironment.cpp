#include "devices/SensorEnvironment.h"

#include "devices/RearCameraBackend.h"

#include <QStandardPaths>

#include <utility>

namespace fieldcal {

QString userDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/field-calibrator";
}

SensorEnvironment systemEnvironment() {
    SensorEnvironment environment;
    environment.loadLibrary = KXLibrary::load;
    environment.loadRotationUpdater = KXRotationUpdater::load;
    environment.services = &PXMServiceManager::instance();
    environment.createPlatformCamera = [](std::shared_ptr<const KXLibrary> library) {
        return std::make_unique<CPlatformCameraControl>(std::make_unique<RearCameraBackend>(std::move(library)));
    };
    environment.now = std::chrono::steady_clock::now;
    environment.dataFolder = userDataFolder();
    return environment;
}

}  // namespace fieldcal
