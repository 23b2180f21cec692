#include "app/OwnCode.h"

#include <sys/auxv.h>

namespace fieldcal {

bool mayHaveMoreRights() {
    return getauxval(AT_SECURE) != 0;
}

std::optional<QString> ownLibraries() {
    return std::nullopt;
}

}  // namespace fieldcal
