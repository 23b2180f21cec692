#include "workflow/Workflow.h"

#include "workflow/Saving.h"

#include <utility>

namespace fieldcal {

WorkflowEnvironment systemWorkflowEnvironment() {
    return {[] { return std::make_unique<Sensor>(); }, userDataFolder()};
}

Workflow::Workflow(WorkflowListener& listener, WorkflowEnvironment environment)
    : listener_(listener),
      environment_(std::move(environment)),
      engine_(context_, factory_),
      attempt_(engine_, listener, light_, applicationSettings().attemptLimit) {
    engine_.setStopFlag(&stop_);
}

Workflow::~Workflow() {
    if (sensor_ != nullptr) leave();
}

void Workflow::requestState(State state) {
    if (state == State::ResetCalibration) records_.forget(usersCamera_);
    state_.set(state);
    if (state == State::WaitingToCalibrate) want([this] { engine_.resetState(); });
}

void Workflow::switchCamera(ColourCamera camera) {
    acceptRefinement();
    usersCamera_ = camera;
    records_.forgetEstimate(camera);
    state_.interrupt();
    want([this, camera] {
        camera_ = camera;
        engine_.resetState();
        if (!sensorReady_) return;
        sensor_->setEmitter(false);
        sensor_->setPlatformPictureWanted(secondCamera());
    });
}

/// The rotation that the finger left, as it is now: whatever comes after may reset the engine.
void Workflow::acceptRefinement() {
    if (state_.state() != State::RefiningCalibration) return;
    Rotation rotation{};
    engine_.getRotationMatrix(rotation.data());
    records_.accept(usersCamera_, rotation);
}

void Workflow::want(std::function<void()> work) {
    const std::lock_guard lock(wantedMutex_);
    wanted_.push_back(std::move(work));
}

LeaveReport Workflow::save() {
    acceptRefinement();
    LeaveReport report;
    leaving_ = true;
    if (sensor_ != nullptr) {
        report.stored = storeCalibration(*sensor_, records_, environment_.dataFolder);
        report.writeBack = sensor_->writeBack();
    }
    return close(report);
}

LeaveReport Workflow::leave() {
    leaving_ = true;
    return close({});
}

LeaveReport Workflow::close(LeaveReport report) {
    stop_ = true;
    sensorReady_ = false;
    sensor_.reset();
    report.errors = std::exchange(leavingErrors_, {});
    for (const QString& error : report.errors)
        qCritical("%s", qUtf8Printable(error));
    return report;
}

}  // namespace fieldcal
