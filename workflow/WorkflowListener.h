#pragma once

#include "camera/CameraParameters.h"
#include "devices/FrameAcquisition.h"
#include "workflow/AttemptListener.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/FoundTurn.h"
#include "workflow/LightGate.h"
#include "workflow/Saving.h"
#include "workflow/State.h"

#include <QString>

#include <vector>

namespace fieldcal {

/// What the workflow tells whoever shows it. Called on the thread that runs the workflow, without any of its locks.
class WorkflowListener : public AttemptListener {
public:
    /// The loop's own transitions; those that the user asked for are not echoed.
    virtual void stateChanged(State) {}
    /// A new frame set for the views of the state. Valid during the call.
    virtual void framesReady(State, ColourCamera, const FrameRecords&) {}
    /// While the user looks for light.
    virtual void lightMeasured(const LightGate::Reading&) {}
    /// Every pass in which the user refines or is shown how to, after the pass's frames. May wait for the screen, but
    /// not longer than for the stop.
    virtual void refining(State) {}
    /// After each pair: how much of the detail that is needed each area of the infrared picture has given so far, 0..1,
    /// row by row, four areas across and three down.
    virtual void detailGathered(const std::vector<double>& /*areas*/) {}
    /// A rotation was found: what the overlay needs to show it, and how it stands to the stored one.
    virtual void solutionFound(ColourCamera, const CameraParameters& /*factory*/, const Rotation& /*estimated*/,
                               const FoundTurn&) {}
    /// The module has no platform camera that could be calibrated.
    virtual void singleCameraOnly() {}
    /// The last save did not come to its end; what became of it. Told once, when the camera has been opened.
    virtual void lastSaveSettled(const LastSave&) {}

    /// Faults. After the first one nothing more happens.
    virtual void deviceError(const QString& /*text*/) {}
    virtual void missingModule() {}
    virtual void missingPlatformCamera() {}
    /// The rear camera delivers nothing. Once; the rest goes on.
    virtual void platformCameraIssue() {}
};

}  // namespace fieldcal
