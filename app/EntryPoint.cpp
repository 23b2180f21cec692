#include "app/EntryPoint.h"

#include "app/GlobalManager.h"
#include "app/InterfaceTexts.h"
#include "app/LogFile.h"
#include "app/OwnCode.h"
#include "devices/SingleInstance.h"
#include "i18n/InterfaceLanguage.h"
#include "render/FixedFunctionGl.h"

#include <memory>
#include <utility>

// Resources in a static library are omitted unless they are referenced, which has to be done outside of any namespace.
static void initTranslations() {
    Q_INIT_RESOURCE(Translations);
}

namespace fieldcal {
namespace {

void reportTakenLock(int& argc, char** argv, const ApplicationEnvironment& environment) {
    const LogFile log(userDataFolder());
    qCritical("Another program uses the name of this program's lock. This program does not start.");
    const QApplication application(argc, argv);
    initTranslations();
    QTranslator translator;
    loadInterfaceLanguage(environment.language, environment.translations, &translator);
    environment.showCritical(texts::kProgramName, interfaceText(texts::kLockTaken));
}

}  // namespace

int runApplication(int& argc, char** argv, ApplicationEnvironment environment) {
    allowOnlyOwnCode(argc, argv);
    auto instance = std::make_unique<SingleInstance>();
    if (instance->isTakenByOthers()) reportTakenLock(argc, argv, environment);
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
