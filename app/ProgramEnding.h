#pragma once

#include "app/ApplicationEnvironment.h"
#include "app/QmlFunctions.h"
#include "app/WorkflowBridge.h"
#include "update/SoftwareUpdate.h"
#include "workflow/ProcessingThread.h"
#include "workflow/Workflow.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class QQuickWindow;

namespace fieldcal {

/// Ends the program: by saving, by leaving, or after an error. It owns the processing thread and, once the program is
/// ending, discards the user's input. Main thread.
class ProgramEnding : public QObject {
public:
    /// The parts of the program that it uses; they must outlive it.
    struct Parts {
        const ApplicationEnvironment& environment;
        QmlFunctions& functions;
        WorkflowBridge& bridge;
        Workflow& workflow;
        SoftwareUpdate& updates;
        std::function<void(const QString& text)> showSaveText;
        std::function<void()> allowSleep;
    };
    explicit ProgramEnding(Parts parts) : parts_(std::move(parts)) {}

    /// To be called once, when the window is loaded.
    void setUp(QQuickWindow* window, std::unique_ptr<ProcessingThread> thread);

    bool hasBegun() const { return begun_; }
    /// The exit code of the process: 0, or 1 after a message about an error.
    int exitCode() const { return exitCode_; }

    void saveAndQuit(Storing storing);
    void leave();
    /// Only the first error counts, and none counts once the user has chosen to leave. If the first camera has already
    /// been accepted, the program ends only after the user has decided whether to store it.
    void failWith(const QString& message);
    /// Called whatever ends the program; further calls have no effect.
    void closeCamera();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool begin();
    bool hasPowerToSave();
    void endProcessing(Stop stop);
    /// Returns false when there was an error to report.
    bool finish(const char* who, const LeaveReport& report);
    QStringList storedFacts() const;
    void showSaved();
    bool isTouchOnSaved(const QEvent& event) const;
    /// Opens the history, once, or ends the program.
    void touchSaved(const QEvent& event);

    const Parts parts_;
    QQuickWindow* window_ = nullptr;
    std::unique_ptr<ProcessingThread> thread_;
    QElapsedTimer savedShown_;  ///< runs from when the confirmation of a stored calibration, or the history, is shown
    QTimer quitSoon_;
    bool historyOpened_ = false;
    bool begun_ = false;
    bool failed_ = false;  ///< an error has been shown, and the program is about to end
    int exitCode_ = 0;
};

}  // namespace fieldcal
