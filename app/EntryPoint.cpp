#include "app/EntryPoint.h"

#include "app/GlobalManager.h"
#include "app/LogFile.h"
#include "devices/SingleInstance.h"
#include "render/FixedFunctionGl.h"

#include <memory>
#include <utility>

namespace fieldcal {

int runApplication(int& argc, char** argv, ApplicationEnvironment environment) {
    auto instance = std::make_unique<SingleInstance>();
    if (!instance->isFirst()) return 1;
    const LogFile log(userDataFolder());
    requestDesktopOpenGL();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    auto manager = std::make_unique<GlobalManager>(argc, argv, std::move(environment));
    // Not the loop's own result: however it was ended, it is the manager that knows of an error.
    GlobalManager::exec();
    instance.reset();
    const int exitCode = manager->exitCode();
    manager.reset();
    return exitCode;
}

}  // namespace fieldcal
