#pragma once

#include "workflow/CalibrationLoop.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/WorkflowListener.h"

#include <QString>
#include <QStringList>

namespace fieldcal {

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

/// The calibration workflow without a screen: the user's actions, two cameras in turn, accepting and saving.
///
/// One thread at a time, that of the interface, calls all functions and uses all members; the loop has a thread of its
/// own (`ProcessingThread`), with which it shares only the records. User actions never wait for the loop: a change of
/// state takes effect at once. `save` and `leave` are called after the loop has ended, on the thread to which it handed
/// over.
class Workflow {
public:
    Workflow(WorkflowListener& listener, const WorkflowEnvironment& environment);
    ~Workflow();

    // User actions.
    void requestState(State state);
    /// Switches to the other camera. During the refinement, the current rotation is accepted first.
    void switchCamera(ColourCamera camera);
    /// While paused, an attempt takes no frames; everything else continues.
    void pauseCapture(bool paused) { loop_.pauseCapture(paused); }

    State state() const { return loop_.state(); }
    /// The camera that the user has selected. The loop follows in its next pass.
    ColourCamera camera() const { return selectedCamera_; }
    const CalibrationRecords& records() const { return records_; }
    /// For the overlay: rotation and drag.
    vq::ICalibrator& engine() { return loop_.engine(); }
    CalibrationLoop& loop() { return loop_; }

    // The processing thread must have ended. Both close the camera; afterwards the workflow may only be destroyed.
    /// Writes each camera's accepted rotation, or the factory's, into the module. A module that has failed is reopened
    /// for this.
    LeaveReport save(Storing storing);
    LeaveReport leave();

private:
    void acceptRefinement();
    LeaveReport close(LeaveReport report);

    const QString dataFolder_;
    ColourCamera selectedCamera_ = ColourCamera::Third;
    CalibrationRecords records_;
    CalibrationLoop loop_;
};

}  // namespace fieldcal
