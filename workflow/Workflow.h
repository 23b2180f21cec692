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

class QThread;

namespace fieldcal {

/// The environment of a workflow.
struct WorkflowEnvironment {
    std::function<std::unique_ptr<Sensor>()> makeSensor;
    QString dataFolder;  ///< holds the note about a failed save and the known stereo baselines
};
WorkflowEnvironment systemWorkflowEnvironment(kxapi::LibrarySearch search = kxapi::LibrarySearch::Installed);

enum class Stop { ToLeave, ToSave };

/// Which rotation a save stores for the camera that is being worked on.
enum class Storing {
    WithRefinement,  ///< the rotation under refinement counts as accepted
    OnlyAccepted     ///< only a rotation that was accepted earlier is stored
};

/// The result of leaving the workflow.
struct LeaveReport {
    bool stored = false;        ///< the module has confirmed the accepted rotations
    bool reported = true;       ///< confirmed, or the next start reports the failure
    WriteBackReport writeBack;  ///< of a save that reached the module
    QStringList errors;         ///< the errors during saving and closing, in order
    QStringList closingErrors;  ///< the last of these, from restoring the vendor's service
};

/// The calibration workflow without a screen: the states, two cameras in turn, accepting and saving.
///
/// There are three groups of functions. User actions, from any one thread at a time, never wait for the loop: a state
/// change takes effect at once, and the loop does the required work on the devices in the order of the actions. Loop
/// functions: one thread calls `pass` repeatedly, and `handOver` at the end. Closing functions are called after the
/// loop has ended, on the thread to which it handed over.
class Workflow {
public:
    Workflow(WorkflowListener& listener, WorkflowEnvironment environment);
    ~Workflow();

    // User actions.
    void requestState(State state);
    /// Switches to the other camera. During the refinement, the current rotation is accepted first.
    void switchCamera(ColourCamera camera);
    /// While paused, an attempt takes no frames; everything else continues.
    void pauseCapture(bool paused) { capturePaused_ = paused; }
    /// Makes `pass` return without doing anything from now on. With `ToLeave`, every wait also ends soon. With
    /// `ToSave`, a call of the camera library in progress may take its time, because a module whose call was abandoned
    /// can no longer be written.
    void requestStop(Stop stop);

    State state() const { return state_.state(); }
    /// The camera that the user has selected.
    ColourCamera camera() const { return selectedCamera_; }
    const CalibrationRecords& records() const { return records_; }
    /// For the overlay: rotation and drag, from the interface's thread.
    vq::ICalibrator& engine() { return engine_; }

    // Loop functions.
    /// Makes one pass. Returns false when there was nothing to do, so that the caller may pause.
    bool pass();
    /// Moves the sensor to another thread. Called on the thread that ran the loop.
    void handOver(QThread* thread);
    bool stopRequested() const { return stop_; }

    // Closing functions. Both close the camera; afterwards the workflow may only be destroyed.
    /// Writes each camera's accepted rotation, or the factory's, into the module. A module that has failed is reopened
    /// for this.
    LeaveReport save(Storing storing);
    LeaveReport leave();

private:
    using Snapshot = WorkflowState::Snapshot;

    // Workflow.cpp: the user's actions, saving and closing.
    void acceptRefinement();
    void act(const std::function<void()>& change, std::function<void()> work);
    bool reopenAfterFault();
    LeaveReport close(LeaveReport report);

    // WorkflowLoop.cpp: one function for each state that has a step.
    Snapshot takeActions();
    void followEmitter(State state);
    bool refreshViews(const Snapshot& now);
    void step(const Snapshot& now);
    void openCamera(const Snapshot& now);
    void reportLastSave();
    void listenTo(Sensor& sensor);
    void report(const QString& error, const std::function<void()>& tell);
    void detectLighting();
    void resetCalibration(const Snapshot& now);
    void startCalibration(const Snapshot& now);
    void processFrame(const Snapshot& now);
    void reportPair();
    void takeSolution(const Snapshot& now);
    bool advance(const Snapshot& from, State to);
    const ImageFrame32& colourFrame() const;

    WorkflowListener& listener_;
    const WorkflowEnvironment environment_;
    std::atomic<bool> stop_{false};
    std::atomic<bool> giveUpWaiting_{false};
    std::atomic<bool> capturePaused_{false};
    WorkflowState state_;
    std::atomic<ColourCamera> selectedCamera_{ColourCamera::Third};
    CalibrationRecords records_;

    std::mutex actionsMutex_;
    std::deque<std::function<void()>> pendingWork_;  ///< work that user actions have left for the loop

    CameraParameters factory_;
    vq::RegistrationContext context_;
    vq::CalibratorInterface engine_;
    LightGate light_;
    CalibrationAttempt attempt_;
    std::vector<double> detail_;  ///< of the attempt so far, as reported; empty before its first pair
    std::unique_ptr<Sensor> sensor_;
    SaveReport solutions_;
    ColourCamera camera_ = ColourCamera::Third;  ///< used by the loop; follows the selected camera
    bool sensorReady_ = false;
    bool faultReported_ = false;
    bool platformIssueReported_ = false;
    State emitterState_ = State::FirstOpened;  ///< the state for which the emitter was last switched
    QStringList leavingErrors_;
};

}  // namespace fieldcal
