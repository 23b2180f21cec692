#include "update/RunningVersion.h"

namespace fieldcal {

std::optional<Version> runningVersion() {
    return Version::parse(QStringLiteral(FIELDCAL_VERSION));
}

}  // namespace fieldcal
