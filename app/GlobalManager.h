#pragma once

#include "app/ApplicationEnvironment.h"
#include "app/ImageViews.h"
#include "app/QmlFunctions.h"
#include "app/SoundSwitch.h"
#include "app/UpdateBridge.h"
#include "app/WorkflowBridge.h"
#include "update/SoftwareUpdate.h"
#include "workflow/ProcessingThread.h"
#include "workflow/Workflow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QQmlApplicationEngine>
#include <QString>
#include <QTranslator>

#include <memory>

class QNetworkReply;
class QQuickWindow;

namespace fieldcal {

/// The application object. It builds the interface and the workflow, connects them, starts the processing thread,
/// forwards messages between the two, and ends the program in either of two ways. Slots and all other functions run on
/// the main thread; the signals are emitted on the processing thread and queued.
class GlobalManager : public QApplication {
    Q_OBJECT
public:
    GlobalManager(int& argc, char** argv, ApplicationEnvironment environment = systemApplicationEnvironment());
    /// Stops the processing thread and closes the camera, whatever has ended the event loop.
    ~GlobalManager() override;

    /// The exit code of the process: 0, or 1 after a message about an error.
    int exitCode() const { return exitCode_; }

    // Access for tests.
    Workflow& workflow() { return workflow_; }
    QQuickWindow* window() const { return window_; }
    WorkflowBridge& bridge() { return bridge_; }

signals:
    void signal_tellAppToRenderImages();
    void signal_modifyUiToState(State new_state);
    void signal_displayMovementText(const QString& text);
    void signal_startCalibrationText(const QString& text);
    void signal_saveCalibrationText(const QString& text);

public slots:
    void slot_tellAppToRenderImages();
    void slot_modifyUiToState(State state);
    void slot_displayMovementText(const QString& text);
    void slot_startCalibrationText(const QString& text);
    void slot_saveCalibrationText(const QString& text);
    void slot_toggleTutorialAnimation(bool on);
    void slot_switchToOOMColorSensor();
    void slot_switchToIMColorSensor();
    void slot_pauseCapture(bool paused);
    void slot_cueSounded(const QString& cue);
    void slot_soundSwitched(bool on);
    void slot_userAskedToExit();
    void slot_saveAndQuit();
    void slot_storeFirstCameraAndQuit();
    void slot_stateChanged(int state);
    void slot_downloadLatestUpdate();
    void slot_abortDownloadOfUpdate();
    void slot_networkReplyLatestVersionJsonFinished(QNetworkReply* reply);
    void slot_timeoutNetworkReplyJson();
    /// Only the first error counts, and none counts once the user has chosen to leave. If the first camera has already
    /// been accepted, the program ends only after the user has decided whether to store it.
    void slot_getKXAPIErrorAndQuit(const QString& message);
    void slot_reportMissingQ550Device();
    void slot_reportMissingPlatformCamera();
    void slot_reportPlatformCameraIssue();

protected:
    /// Discards the user's input once the program is ending.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadUILanguage();
    void loadInterface();
    void connectSignals();
    void switchCamera(ColourCamera camera, const char* description, const char* instruction);

    /// The display stays on while photos are taken or the image is viewed, because nobody touches the screen then.
    void stayAwake(bool on);

    // Implemented in GlobalManagerEnding.cpp.
    bool beginEnding();
    void saveAndQuit(Storing storing);
    bool hasPowerToSave();
    void endProcessing(Stop stop);
    /// Called whatever ends the program; further calls have no effect.
    void closeCamera();
    /// Returns false when there was an error to report.
    bool finishEnding(const char* who, const LeaveReport& report);
    QStringList storedFacts() const;
    void showSaved();
    bool isTouchOnSaved(const QEvent& event) const;

    const ApplicationEnvironment environment_;
    QTranslator translator_;
    bool leftToRight_ = true;
    MainThreadCalls mainThread_;
    QmlFunctions functions_{mainThread_};
    ImageViews views_;
    WorkflowBridge bridge_{*this, mainThread_, functions_, views_};
    Workflow workflow_;
    UpdateBridge updateBridge_{*this, functions_};
    SoftwareUpdate updates_;
    QQmlApplicationEngine engine_;  ///< its views use the workflow's engine
    QQuickWindow* window_ = nullptr;
    QElapsedTimer lightingStopwatch_;
    QElapsedTimer savedShown_;  ///< runs from when the confirmation of a stored calibration is shown
    SoundSwitch sounds_;
    std::unique_ptr<ProcessingThread> thread_;
    bool awake_ = false;
    bool ending_ = false;
    bool failed_ = false;  ///< an error has been shown, and the program is about to end
    int exitCode_ = 0;
};

}  // namespace fieldcal
