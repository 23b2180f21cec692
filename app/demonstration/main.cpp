// The program with the simulated module only, whatever else is installed, and without administrator rights. Without
// KXSIM_SESSION it plays the recording beside the simulated libraries. It does not look for updates, because the
// installer would start the other program.
#include "app/EntryPoint.h"
#include "kxapi/LibrarySearch.h"
#include "update/windows/ProgramFile.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char** argv) {
    if (!kxapi::hasSimulatedLibraries()) {
        std::fprintf(stderr, "The folder with the simulated libraries is missing.\n");
        return 1;
    }
    const QString program = QString::fromStdWString(fieldcal::programFile());
    const QString recording = QFileInfo(program).path() + "/simulated/recording";
    if (!qEnvironmentVariableIsSet("KXSIM_SESSION") && QDir(recording).exists())
        qputenv("KXSIM_SESSION", QDir::toNativeSeparators(recording).toLocal8Bit());
    fieldcal::ApplicationEnvironment environment =
        fieldcal::systemApplicationEnvironment(kxapi::LibrarySearch::SimulatedOnly);
    environment.update.manifest = QUrl();
    return fieldcal::runApplication(argc, argv, environment);
}
