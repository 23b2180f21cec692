#include "devices/SystemRearCamera.h"

namespace fieldcal {

std::unique_ptr<PlatformCameraBackend> systemRearCamera() {
    return nullptr;
}

}  // namespace fieldcal
