#include "workflow/Workflow.h"

#include "workflow/Saving.h"

#include <utility>

namespace fieldcal {

Workflow::Workflow(WorkflowListener& listener, const WorkflowEnvironment& environment)
    : dataFolder_(environment.dataFolder), loop_(listener, environment, records_) {}

Workflow::~Workflow() {
    leave();
}

void Workflow::requestState(State state) {
    loop_.requestState(state);
    // The records are cleared after the state change, so that a solution which the loop is about to record cannot
    // survive it.
    if (state == State::ResetCalibration) records_.forget(selectedCamera_);
}

void Workflow::switchCamera(ColourCamera camera) {
    acceptRefinement();
    selectedCamera_ = camera;
    loop_.switchCamera(camera);
    records_.forgetEstimate(camera);
}

/// Accepts the current rotation of the refinement before a later action can reset the engine.
void Workflow::acceptRefinement() {
    if (state() != State::RefiningCalibration) return;
    Rotation rotation{};
    engine().getRotationMatrix(rotation.data());
    records_.accept(selectedCamera_, rotation);
}

LeaveReport Workflow::save(Storing storing) {
    if (storing == Storing::WithRefinement) acceptRefinement();
    LeaveReport report;
    loop_.requestStop(Stop::ToSave);
    if (Sensor* sensor = loop_.sensorForSave()) {
        const SaveResult saved = storeCalibration(*sensor, records_, dataFolder_);
        report.stored = saved.stored;
        report.reported = saved.reported;
        report.writeBack = sensor->writeBack();
        loop_.solutions().keep(dataFolder_, *sensor, records_, report.stored);
    } else if (records_.anyAccepted()) {
        qInfo("Failed to store calibration information to flash.");
        report.reported = false;  // there is no module that a note could be about
    }
    return close(std::move(report));
}

LeaveReport Workflow::leave() {
    loop_.requestStop(Stop::ToLeave);
    return close({});
}

LeaveReport Workflow::close(LeaveReport report) {
    CalibrationLoop::Errors errors = loop_.close();
    report.errors = std::move(errors.all);
    report.closingErrors = std::move(errors.closing);
    for (const QString& error : report.errors)
        qCritical("%s", qUtf8Printable(error));
    return report;
}

}  // namespace fieldcal
