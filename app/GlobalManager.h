#pragma once

#include "app/ApplicationEnvironment.h"
#include "app/ImageViews.h"
#include "app/ProgramEnding.h"
#include "app/QmlFunctions.h"
#include "app/SoundSwitch.h"
#include "app/UpdateBridge.h"
#include "app/WorkflowBridge.h"
#include "update/SoftwareUpdate.h"
#include "workflow/Workflow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QQmlApplicationEngine>
#include <QString>
#include <QTranslator>

class QNetworkReply;
class QQuickWindow;

namespace fieldcal {

/// The application object. It builds the interface and the workflow, connects them, starts the processing thread,
/// forwards messages between the two, and lets `ProgramEnding` end the program. Slots and all other functions run on
/// the main thread; the signals are emitted on the processing thread and queued.
class GlobalManager : public QApplication {
    Q_OBJECT
public:
    GlobalManager(int& argc, char** argv, ApplicationEnvironment environment = systemApplicationEnvironment());
    /// Stops the processing thread and closes the camera, whatever has ended the event loop. What that thread has left
    /// in the queue of the main thread is discarded.
    ~GlobalManager() override;

    /// The exit code of the process: 0, or 1 after a message about an error.
    int exitCode() const { return ending_.exitCode(); }

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
    void slot_getKXAPIErrorAndQuit(const QString& message);
    void slot_reportMissingQ550Device();
    void slot_reportMissingPlatformCamera();
    void slot_reportPlatformCameraIssue();

private:
    void loadUILanguage();
    void loadInterface();
    void connectSignals();
    void switchCamera(ColourCamera camera, const char* description, const char* instruction);

    /// The display stays on while photos are taken or the image is viewed, because nobody touches the screen then.
    void stayAwake(bool on);

    const ApplicationEnvironment environment_;
    QTranslator translator_;
    bool leftToRight_ = true;
    QmlFunctions functions_;
    ImageViews views_;
    WorkflowBridge bridge_{*this, functions_, views_};
    Workflow workflow_;
    UpdateBridge updateBridge_{*this, functions_};
    SoftwareUpdate updates_;
    QQmlApplicationEngine engine_;  ///< its views use the workflow's engine
    QQuickWindow* window_ = nullptr;
    QElapsedTimer lightingStopwatch_;
    SoundSwitch sounds_;
    bool awake_ = false;
    ProgramEnding ending_;  ///< declared last, because it uses the other members
};

}  // namespace fieldcal
