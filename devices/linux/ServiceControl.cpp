#include "devices/ServiceControl.h"

namespace fieldcal {

std::unique_ptr<ServiceControl> systemServiceControl() {
    return emptyServiceControl();
}

}  // namespace fieldcal
