#include "update/UpdateEnvironment.h"

#include "update/RunningVersion.h"
#include "update/UpdateFolder.h"

namespace fieldcal {

UpdateEnvironment systemUpdateEnvironment(const QUrl& manifest) {
    UpdateEnvironment environment;
    environment.manifest = manifest;
    environment.running = runningVersion();
    environment.temporaryFolder = updateFolder();
    environment.starter = systemInstallerStarter();
    return environment;
}

}  // namespace fieldcal
