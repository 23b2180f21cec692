#pragma once

#include "app/ApplicationEnvironment.h"
#include "app/ImageViews.h"
#include "app/QmlFunctions.h"
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

/// The application object. Builds the interface and the workflow, connects them, starts the processing thread, and
/// passes on what the one tells the other; both ways out end here. Slots and everything else run on the main thread;
/// the signals are emitted on the processing thread and queued.
class GlobalManager : public QApplication {
    Q_OBJECT
public:
    GlobalManager(int& argc, char** argv, ApplicationEnvironment environment = systemApplicationEnvironment());
    /// Stops the processing thread and closes the camera, whatever ended the event loop.
    ~GlobalManager() override;

    /// What the process is to return: 0, or 1 after a message about an error.
    int exitCode() const { return exitCode_; }

    // For tests.
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
    void slot_userAskedToExit();
    void slot_saveAndQuit();
    void slot_storeFirstCameraAndQuit();
    void slot_stateChanged(int state);
    void slot_downloadLatestUpdate();
    void slot_abortDownloadOfUpdate();
    void slot_networkReplyLatestVersionJsonFinished(QNetworkReply* reply);
    void slot_timeoutNetworkReplyJson();
    /// The first error counts, and nothing after the user has chosen to leave. Where the first camera is accepted
    /// already, the program ends only when the user has decided whether it is stored.
    void slot_getKXAPIErrorAndQuit(const QString& message);
    void slot_reportMissingQ550Device();
    void slot_reportMissingPlatformCamera();
    void slot_reportPlatformCameraIssue();

protected:
    /// Swallows the user's input once the program is ending.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadUILanguage();
    void loadInterface();
    void connectSignals();
    void switchCamera(ColourCamera camera, const char* description, const char* instruction);

    /// Nobody touches the screen while photos are taken or the picture is looked at.
    void stayAwake(bool on);

    // GlobalManagerEnding.cpp
    bool beginEnding();
    void saveAndQuit(Storing storing);
    void endProcessing(Stop stop);
    /// Whatever ends the program; once it was closed, nothing.
    void closeCamera();
    /// False: there was something to tell.
    bool finishEnding(const char* who, const LeaveReport& report);

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
    std::unique_ptr<ProcessingThread> thread_;
    bool awake_ = false;
    bool ending_ = false;
    bool failed_ = false;  ///< an error has been shown, and the program is to end
    int exitCode_ = 0;
};

}  // namespace fieldcal
