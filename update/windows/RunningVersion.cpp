#include "update/RunningVersion.h"

#include "update/windows/ProgramFile.h"
#include "update/windows/VersionResource.h"

namespace fieldcal {

std::optional<Version> runningVersion() {
    const std::optional<ProgramIdentity> stated = identityOf(programFile());
    if (!stated) return std::nullopt;
    return stated->version;
}

}  // namespace fieldcal
