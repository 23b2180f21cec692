#pragma once

#include "i18n/SystemLanguage.h"
#include "update/UpdateEnvironment.h"
#include "workflow/Workflow.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>

namespace fieldcal {

/// What the application finds outside itself.
struct ApplicationEnvironment {
    WorkflowEnvironment workflow;
    SystemLanguage language;
    QString translations = QStringLiteral(":/Files");
    QUrl rootDocument{QStringLiteral("qrc:/Views/main.qml")};
    UpdateEnvironment update;
    /// Shows a message with its title and waits until the user has read it.
    std::function<void(const QString& title, const QString& text)> showCritical;
    /// Keeps display and system on, or leaves them to the system again. Main thread.
    std::function<void(bool on)> keepAwake;
    /// How long the user sees that the calibration is stored, before the program ends.
    std::chrono::milliseconds savedShownFor{2000};
};

ApplicationEnvironment systemApplicationEnvironment();

}  // namespace fieldcal
