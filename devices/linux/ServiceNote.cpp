#include "devices/ServiceNote.h"

namespace fieldcal {

std::unique_ptr<ServiceNote> systemServiceNote() {
    return nullptr;
}

}  // namespace fieldcal
