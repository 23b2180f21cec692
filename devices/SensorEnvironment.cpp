#include "devices/SensorEnvironment.h"

#include "devices/RearCameraBackend.h"

#include <utility>

namespace fieldcal {

SensorEnvironment systemEnvironment() {
    SensorEnvironment environment;
    environment.loadLibrary = KXLibrary::load;
    environment.services = &PXMServiceManager::instance();
    environment.createPlatformCamera = [](std::shared_ptr<const KXLibrary> library) {
        return std::make_unique<CPlatformCameraControl>(std::make_unique<RearCameraBackend>(std::move(library)));
    };
    environment.now = std::chrono::steady_clock::now;
    return environment;
}

}  // namespace fieldcal
