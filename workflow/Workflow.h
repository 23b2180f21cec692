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

/// What a workflow finds outside itself.
struct WorkflowEnvironment {
    std::function<std::unique_ptr<Sensor>()> makeSensor;
    QString dataFolder;  ///< where it is noted that a calibration was not stored, and what is known about modules
};
WorkflowEnvironment systemWorkflowEnvironment();

enum class Stop { ToLeave, ToSave };

/// What a save stores of the camera in work.
enum class Storing {
    WithRefinement,  ///< what is being refined counts as accepted
    OnlyAccepted     ///< nothing: only a camera that was accepted before is stored
};

/// How leaving went.
struct LeaveReport {
    bool stored = false;        ///< the module has confirmed the accepted rotations
    bool told = true;           ///< it has, or the next start says that it has not
    WriteBackReport writeBack;  ///< of a save that came as far as the module
    QStringList errors;         ///< what arose while saving and closing, in order
    QStringList closingErrors;  ///< those of them that came last: the vendor's service was not restored
};

/// The calibration workflow without a screen: the states, two cameras in turn, what is stored and saved.
///
/// Three kinds of calls. The user's (any one thread at a time): they never wait for the loop; a state change counts at
/// once, and what it needs from the devices is done by the loop in the order in which the user asked. The loop's: one
/// thread calls `pass` again and again, and `handOver` at its end. The leaver's: after the loop has ended, on the
/// thread to which it handed over.
class Workflow {
public:
    Workflow(WorkflowListener& listener, WorkflowEnvironment environment);
    ~Workflow();

    // The user's.
    void requestState(State state);
    /// Goes on with the other camera. From the refinement, the rotation as it is now is accepted first.
    void switchCamera(ColourCamera camera);
    /// While it is paused, an attempt takes no frames; everything else goes on.
    void pauseCapture(bool paused) { capturePaused_ = paused; }
    /// `pass` does nothing from now on. To leave, every wait is given up soon as well; to save, a call of the camera
    /// library that is under way may take its time, since a camera that was given up can no longer be written.
    void requestStop(Stop stop);

    State state() const { return state_.state(); }
    /// The camera that the user is working on.
    ColourCamera camera() const { return usersCamera_; }
    const CalibrationRecords& records() const { return records_; }
    /// For the overlay: rotation and drag, from the interface's thread.
    vq::ICalibrator& engine() { return engine_; }

    // The loop's.
    /// One pass. False: there was nothing to do, and the caller may pause.
    bool pass();
    /// Moves the sensor to another thread, from the one that ran the loop.
    void handOver(QThread* thread);
    bool stopRequested() const { return stop_; }

    // The leaver's. Both close the camera; nothing but destruction follows.
    /// Writes each camera's accepted rotation, or the factory's, into the module. A module that has failed is opened
    /// anew for this.
    LeaveReport save(Storing storing);
    LeaveReport leave();

private:
    using Snapshot = WorkflowState::Snapshot;

    // Workflow.cpp: the user's actions and leaving.
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
    void tellOfLastSave();
    void listenTo(Sensor& sensor);
    void report(const QString& error, const std::function<void()>& tell);
    void detectLighting();
    void resetCalibration(const Snapshot& now);
    void startCalibration(const Snapshot& now);
    void processFrame(const Snapshot& now);
    void tellDetail();
    void takeSolution(const Snapshot& now);
    bool advance(const Snapshot& from, State to);
    const ImageFrame32& colourFrame() const;
    bool secondCamera() const { return camera_ == ColourCamera::OutOfModule; }

    WorkflowListener& listener_;
    const WorkflowEnvironment environment_;
    std::atomic<bool> stop_{false};
    std::atomic<bool> giveUpWaiting_{false};
    std::atomic<bool> capturePaused_{false};
    WorkflowState state_;
    std::atomic<ColourCamera> usersCamera_{ColourCamera::InModule};
    CalibrationRecords records_;

    std::mutex actionsMutex_;
    std::deque<std::function<void()>> wanted_;  ///< what the user's actions leave for the loop to do

    CameraParameters factory_;
    vq::RegistrationContext context_;
    vq::CalibratorInterface engine_;
    LightGate light_;
    CalibrationAttempt attempt_;
    std::unique_ptr<Sensor> sensor_;
    SaveReport solutions_;
    ColourCamera camera_ = ColourCamera::InModule;  ///< the loop's; follows the user's
    bool sensorReady_ = false;
    bool faultTold_ = false;
    bool platformIssueTold_ = false;
    State emitterState_ = State::FirstOpened;  ///< the state that the emitter was switched for
    QStringList leavingErrors_;
};

}  // namespace fieldcal
