#include "app/ApplicationEnvironment.h"

#include "app/KeepAwake.h"
#include "sound/CuePlayer.h"

#include <QMessageBox>

namespace fieldcal {

ApplicationEnvironment systemApplicationEnvironment(kxapi::LibrarySearch search) {
    ApplicationEnvironment environment;
    environment.workflow = systemWorkflowEnvironment(search);
    environment.language = systemLanguage();
    environment.update = systemUpdateEnvironment(QUrl(QStringLiteral(FIELDCAL_UPDATE_MANIFEST)));
    environment.keepAwake = keepAwake;
    environment.power = systemPower;
    environment.playCue = playCue;
    environment.showCritical = [](const QString& title, const QString& text) {
        QMessageBox::critical(nullptr, title, text, QMessageBox::Ok);
    };
    return environment;
}

}  // namespace fieldcal
