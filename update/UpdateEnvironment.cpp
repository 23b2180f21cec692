#include "update/UpdateEnvironment.h"

#include "update/RunningVersion.h"

#include <QDir>

namespace fieldcal {

UpdateEnvironment systemUpdateEnvironment(const QUrl& manifest) {
    UpdateEnvironment environment;
    environment.manifest = manifest;
    environment.running = runningVersion();
    environment.temporaryFolder = QDir::tempPath();
    environment.starter = systemInstallerStarter();
    return environment;
}

}  // namespace fieldcal
