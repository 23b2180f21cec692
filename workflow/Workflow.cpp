#include "workflow/Workflow.h"

#include "devices/CameraParameterReader.h"
#include "workflow/Saving.h"

#include <utility>

namespace fieldcal {

WorkflowEnvironment systemWorkflowEnvironment(kxapi::LibrarySearch search) {
    return {[search] { return std::make_unique<Sensor>(systemEnvironment(search)); }, userDataFolder()};
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

void Workflow::requestStop(Stop stop) {
    giveUpWaiting_ = giveUpWaiting_ || stop == Stop::ToLeave;
    stop_ = true;
}

void Workflow::requestState(State state) {
    const auto set = [this, state] { state_.set(state); };
    if (state == State::WaitingToCalibrate) {
        act(set, [this] { engine_.resetState(); });
    } else {
        act(set, nullptr);
    }
    // The records are cleared after the state change, so that a solution which the loop is about to record cannot
    // survive it.
    if (state == State::ResetCalibration) records_.forget(selectedCamera_);
}

void Workflow::switchCamera(ColourCamera camera) {
    acceptRefinement();
    selectedCamera_ = camera;
    act([this] { state_.interrupt(); },
        [this, camera] {
            camera_ = camera;
            attempt_.cancel();
            engine_.resetState();
            if (!sensorReady_) return;
            // The emitter stays off until the refinement is entered again, even if the state still is the refinement.
            emitterState_ = State::RefiningCalibration;
            sensor_->setEmitter(false);
            sensor_->setPlatformImageWanted(camera_ == ColourCamera::Platform);
        });
    records_.forgetEstimate(camera);
}

/// Accepts the current rotation of the refinement before a later action can reset the engine.
void Workflow::acceptRefinement() {
    if (state_.state() != State::RefiningCalibration) return;
    Rotation rotation{};
    engine_.getRotationMatrix(rotation.data());
    records_.accept(selectedCamera_, rotation);
}

/// Makes the change and queues the work atomically: a loop that sees the change also has the work, and a loop that does
/// not see it loses its own transition.
void Workflow::act(const std::function<void()>& change, std::function<void()> work) {
    const std::lock_guard lock(actionsMutex_);
    change();
    if (work != nullptr) pendingWork_.push_back(std::move(work));
}

LeaveReport Workflow::save(Storing storing) {
    if (storing == Storing::WithRefinement) acceptRefinement();
    LeaveReport report;
    requestStop(Stop::ToSave);
    if (sensor_ != nullptr && reopenAfterFault()) {
        const SaveResult saved = storeCalibration(*sensor_, records_, environment_.dataFolder);
        report.stored = saved.stored;
        report.reported = saved.reported;
        report.writeBack = sensor_->writeBack();
        solutions_.keep(environment_.dataFolder, *sensor_, records_, report.stored);
    }
    return close(report);
}

/// Reopens a failed module, provided that a rotation was accepted. Returns false when a different module is connected
/// now, so that nothing may be written. If the module cannot be opened, the write itself fails, which is recorded like
/// any other failed save.
bool Workflow::reopenAfterFault() {
    if (!sensor_->faulted() || !records_.anyAccepted()) return true;
    const std::uint32_t serial = sensor_->serialNumber();
    sensor_.reset();
    sensor_ = environment_.makeSensor();
    listenTo(*sensor_);
    sensor_->setStopFlag(&giveUpWaiting_);
    CameraParameters parameters;
    const bool open = sensor_->open(applicationSettings()) && readCameraParameters(*sensor_, &parameters, [] {});
    qInfo("The camera was opened anew for the save: %s.", open ? "it answers" : "it does not answer");
    return !open || sensor_->serialNumber() == serial;
}

LeaveReport Workflow::leave() {
    requestStop(Stop::ToLeave);
    return close({});
}

LeaveReport Workflow::close(LeaveReport report) {
    sensorReady_ = false;
    const int errorsBefore = leavingErrors_.size();
    sensor_.reset();
    report.closingErrors = leavingErrors_.mid(errorsBefore);
    report.errors = std::exchange(leavingErrors_, {});
    for (const QString& error : report.errors)
        qCritical("%s", qUtf8Printable(error));
    return report;
}

}  // namespace fieldcal
