#include "devices/ServiceControl.h"

namespace fieldcal {

std::unique_ptr<ServiceControl> systemServiceControl() {
    return emptyServiceControl();
}

QString serviceNoteFile() {
    return {};
}

}  // namespace fieldcal
