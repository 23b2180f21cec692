#pragma once

#include "camera/CameraParameters.h"
#include "devices/FrameAcquisition.h"
#include "workflow/AttemptListener.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/CaptureGuide.h"
#include "workflow/FoundTurn.h"
#include "workflow/LightGate.h"
#include "workflow/Saving.h"
#include "workflow/State.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace fieldcal {

/// Receives the output of the workflow for presentation. Called on the thread that runs the workflow, without holding
/// any of its locks.
class WorkflowListener : public AttemptListener {
public:
    /// A transition made by the loop itself. Transitions requested by the user are not repeated here.
    virtual void stateChanged(State) {}
    /// A new frame set for the views of the state. Valid during the call only.
    virtual void framesReady(State, ColourCamera, const FrameRecords&) {}
    /// A brightness measurement while the user looks for light.
    virtual void lightMeasured(const LightGate::Reading&) {}
    /// Sent after the frames in every pass in which the user refines the rotation or watches the tutorial for it. The
    /// call may wait for the screen, but must return soon after a stop.
    virtual void refining(State) {}
    /// Sent after each pair: the share of the required detail that each area of the infrared image has provided so far,
    /// 0..1, row by row, four areas across and three down.
    virtual void detailGathered(const std::vector<double>& /*areas*/) {}
    /// Sent after each pair: what it has contributed.
    virtual void photoJudged(PhotoWorth) {}
    /// A rotation was found: the data that the overlay needs to show it, and its difference from the stored rotation.
    virtual void solutionFound(ColourCamera, const CameraParameters& /*factory*/, const Rotation& /*estimated*/,
                               const FoundTurn&) {}
    /// The module has no platform camera that can be calibrated.
    virtual void singleCameraOnly() {}
    /// The outcome of a save that was interrupted. Sent once, when the camera has been opened.
    virtual void lastSaveSettled(const LastSave&) {}
    /// When a calibration of this module was last stored. Sent once, when the camera has been opened and the history
    /// has one.
    virtual void lastCalibration(const QDateTime& /*stored*/) {}

    /// Faults. No further call follows the first one. The text is already translated.
    virtual void deviceError(const QString& /*text*/) {}
    virtual void missingModule() {}
    virtual void missingPlatformCamera() {}
    /// The rear camera delivers no images. Sent once; everything else continues.
    virtual void platformCameraIssue() {}
};

}  // namespace fieldcal
