#pragma once

#include "devices/PowerState.h"
#include "i18n/SystemLanguage.h"
#include "sound/Cue.h"
#include "update/UpdateEnvironment.h"
#include "workflow/Workflow.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

namespace fieldcal {

/// The environment of the application.
struct ApplicationEnvironment {
    WorkflowEnvironment workflow;
    SystemLanguage language;
    QString translations = QStringLiteral(":/Files");
    QUrl rootDocument{QStringLiteral("qrc:/Views/main.qml")};
    UpdateEnvironment update;
    /// Shows a message with its title and waits until the user closes it.
    std::function<void(const QString& title, const QString& text)> showCritical;
    /// Keeps the display and the system awake, or returns control to the system. Main thread.
    std::function<void(bool on)> keepAwake;
    /// The computer's supply, asked before a save.
    std::function<std::optional<PowerState>()> power;
    /// How long the confirmation of a stored calibration is shown before the program ends, unless the user touches it.
    std::chrono::milliseconds savedShownFor{10000};
    /// Main thread.
    std::function<void(Cue)> playCue;
};

ApplicationEnvironment systemApplicationEnvironment(kxapi::LibrarySearch search = kxapi::LibrarySearch::Installed);

}  // namespace fieldcal
