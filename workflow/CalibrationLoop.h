#pragma once

#include "camera/CameraParameters.h"
#include "devices/Sensor.h"
#include "engine/CalibratorInterface.h"
#include "workflow/CalibrationAttempt.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/LightGate.h"
#include "workflow/SaveReport.h"
#include "workflow/WorkflowListener.h"
#include "workflow/WorkflowState.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

class QThread;

namespace fieldcal {

/// The environment of a workflow.
struct WorkflowEnvironment {
    std::function<std::unique_ptr<Sensor>()> makeSensor;
    QString dataFolder;  ///< holds the note about a failed save and the known stereo baselines
};
WorkflowEnvironment systemWorkflowEnvironment(kxapi::LibrarySearch search = kxapi::LibrarySearch::Installed);

enum class Stop { ToLeave, ToSave };

/// The loop that works with the devices: it opens the module, takes frame sets, feeds them to the calibration attempt
/// of the state, and reports to the listener. It owns the sensor and the engine.
///
/// Three groups of functions, each with the data that it uses. Requests, from any thread, never wait for the loop: a
/// change of state takes effect at once, and the work that it requires on the devices is queued for the next pass. Loop
/// functions: one thread calls `pass` repeatedly, and `handOver` at the end. Closing functions are called after the
/// loop has ended, on the thread to which it handed over.
class CalibrationLoop {
public:
    /// The references must outlive the loop.
    CalibrationLoop(WorkflowListener& listener, WorkflowEnvironment environment, CalibrationRecords& records);

    // Requests.
    void requestState(State state);
    /// Cancels a transition in progress and the attempt; the following frames are those of `camera`.
    void switchCamera(ColourCamera camera);
    /// While paused, an attempt takes no frames; everything else continues.
    void pauseCapture(bool paused) { capturePaused_ = paused; }
    /// Makes `pass` return without doing anything from now on. With `ToLeave`, every wait also ends soon. With
    /// `ToSave`, a call of the camera library in progress may take its time, because a module whose call was abandoned
    /// can no longer be written.
    void requestStop(Stop stop);
    bool stopRequested() const { return stop_; }
    State state() const { return state_.state(); }
    /// Rotation and drag of the engine may be used while the loop runs.
    vq::ICalibrator& engine() { return engine_; }

    // Loop functions.
    /// Makes one pass. Returns false when there was nothing to do, so that the caller may pause.
    bool pass();
    /// Moves the sensor to another thread. Called on the thread that ran the loop.
    void handOver(QThread* thread);

    // Closing functions.
    /// Returns the open sensor for a save. A module that has failed is reopened for it, provided that a rotation was
    /// accepted. Null when there is no sensor, when the module does not answer any more, or when a different one is
    /// connected now.
    Sensor* sensorForSave();
    /// The solutions found, for the report about a save.
    const SaveReport& solutions() const { return solutions_; }

    /// The errors since the stop.
    struct Errors {
        QStringList all;      ///< during saving and closing, in order
        QStringList closing;  ///< the last of these, from restoring the vendor's service
    };
    /// Closes the camera. Afterwards the loop may only be destroyed. A further call has no effect.
    Errors close();

private:
    using Snapshot = WorkflowState::Snapshot;

    void act(const std::function<void()>& change, std::function<void()> work);

    Snapshot takeActions();
    void useCamera(ColourCamera camera);
    void followEmitter(State state);
    bool refreshViews(const Snapshot& now);
    void openCamera(const Snapshot& now);
    std::unique_ptr<Sensor> makeSensor();
    void report(const QString& error, const std::function<void()>& tell);
    void reportLastSave();

    // One function for each state that has a step.
    void step(const Snapshot& now);
    void detectLighting();
    void resetCalibration(const Snapshot& now);
    void startCalibration(const Snapshot& now);
    void processFrame(const Snapshot& now);
    void takeSolution(const Snapshot& now);
    void reportPair();
    bool advance(const Snapshot& from, State to);

    WorkflowListener& listener_;
    const WorkflowEnvironment environment_;
    CalibrationRecords& records_;  ///< any thread

    // Any thread.
    std::atomic<bool> stop_{false};
    std::atomic<bool> giveUpWaiting_{false};
    std::atomic<bool> capturePaused_{false};
    WorkflowState state_;
    std::mutex actionsMutex_;
    std::deque<std::function<void()>> pendingWork_;  ///< work that requests have left for the loop

    // The loop's thread, except for the rotation and drag of the engine. Afterwards the thread that closes.
    CameraParameters factory_;
    vq::RegistrationContext context_;
    vq::CalibratorInterface engine_;
    LightGate light_;
    CalibrationAttempt attempt_;
    std::vector<double> detail_;  ///< of the attempt so far, as reported; empty before its first pair
    SaveReport solutions_;
    ColourCamera camera_ = ColourCamera::Third;
    bool sensorReady_ = false;
    bool faultReported_ = false;
    bool platformIssueReported_ = false;
    State emitterState_ = State::FirstOpened;  ///< the state for which the emitter was last switched
    QStringList leavingErrors_;
    std::unique_ptr<Sensor> sensor_;  ///< declared last, because it reports to the loop while it is destroyed
};

}  // namespace fieldcal
