#include "app/EntryPoint.h"

#include "app/GlobalManager.h"
#include "app/LogFile.h"
#include "app/OwnCode.h"
#include "devices/SingleInstance.h"
#include "render/FixedFunctionGl.h"

#include <memory>
#include <utility>

namespace fieldcal {

int runApplication(int& argc, char** argv, ApplicationEnvironment environment) {
    allowOnlyOwnCode(argc, argv);
    auto instance = std::make_unique<SingleInstance>();
    if (!instance->isFirst()) return 1;
    const LogFile log(userDataFolder());
    requestDesktopOpenGL();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    auto manager = std::make_unique<GlobalManager>(argc, argv, std::move(environment));
    // The exit code is taken from the manager, which knows of an error whatever has ended the event loop.
    GlobalManager::exec();
    instance.reset();
    const int exitCode = manager->exitCode();
    manager.reset();
    return exitCode;
}

}  // namespace fieldcal
