#include "workflow/CalibrationLoop.h"

#include "devices/CameraParameterReader.h"
#include "engine/Rotation.h"
#include "engine/TextForms.h"
#include "report/History.h"
#include "workflow/Saving.h"

#include <QThread>

#include <algorithm>
#include <array>
#include <utility>

namespace fieldcal {
namespace {

using Matrix34 = Eigen::Matrix<double, 3, 4>;

Matrix34 poseOf(const Rotation& rotation, const std::array<float, 3>& translation) {
    Matrix34 pose;
    pose.leftCols<3>() = vq::matrixOf(rotation);
    pose.col(3) = Eigen::Map<const Eigen::Vector3f>(translation.data()).cast<double>();
    return pose;
}

void logSolution(const CameraExtrinsics& factory, const Rotation& estimated, const std::array<float, 3>& translation) {
    const Matrix34 before = poseOf(factory.rotation, factory.translation);
    const Matrix34 after = poseOf(estimated, translation);
    const Eigen::Vector3d angles = vq::anglesFromRotation(after.leftCols<3>()) * kDegreesPerRadian;
    const Matrix34 change = (after - before).cwiseAbs();
    qInfo("Default extrinsics:\n%s", vq::matrixText(before).c_str());
    qInfo("Estimated extrinsics:\n%s", vq::matrixText(after).c_str());
    qInfo("Estimated angles:\n%f %f %f", angles[0], angles[1], angles[2]);
    // Small angles about X and Z appear in these entries of the rotation.
    qInfo("Result: %f", std::max({change(0, 1), change(1, 0), change(1, 2), change(2, 1)}));
}

}  // namespace

WorkflowEnvironment systemWorkflowEnvironment(kxapi::LibrarySearch search) {
    return {[search] { return std::make_unique<Sensor>(systemEnvironment(search)); }, userDataFolder()};
}

CalibrationLoop::CalibrationLoop(WorkflowListener& listener, WorkflowEnvironment environment,
                                 CalibrationRecords& records)
    : listener_(listener),
      environment_(std::move(environment)),
      records_(records),
      engine_(context_, factory_),
      attempt_(engine_, listener, light_, applicationSettings().attemptLimit) {
    engine_.setStopFlag(&stop_);
}

void CalibrationLoop::requestState(State state) {
    const auto set = [this, state] { state_.set(state); };
    if (state == State::WaitingToCalibrate) {
        act(set, [this] { engine_.resetState(); });
    } else {
        act(set, nullptr);
    }
}

void CalibrationLoop::switchCamera(ColourCamera camera) {
    act([this] { state_.interrupt(); }, [this, camera] { useCamera(camera); });
}

/// Makes the change and queues the work atomically: a loop that sees the change also has the work, and a loop that does
/// not see it loses its own transition.
void CalibrationLoop::act(const std::function<void()>& change, std::function<void()> work) {
    const std::lock_guard lock(actionsMutex_);
    change();
    if (work != nullptr) pendingWork_.push_back(std::move(work));
}

void CalibrationLoop::requestStop(Stop stop) {
    if (stop == Stop::ToLeave) giveUpWaiting_ = true;
    stop_ = true;
}

bool CalibrationLoop::pass() {
    if (stop_) return false;
    const Snapshot now = takeActions();
    followEmitter(now.state);
    const bool refreshed = refreshViews(now);
    if (sensor_ == nullptr) openCamera(now);
    if (refreshed) step(now);
    return refreshed;
}

/// Does the work that requests have queued, and returns the state at that time.
CalibrationLoop::Snapshot CalibrationLoop::takeActions() {
    std::deque<std::function<void()>> actions;
    Snapshot now{};
    {
        const std::lock_guard lock(actionsMutex_);
        actions.swap(pendingWork_);
        now = state_.take();
    }
    for (const auto& action : actions)
        action();
    return now;
}

void CalibrationLoop::useCamera(ColourCamera camera) {
    camera_ = camera;
    attempt_.cancel();
    engine_.resetState();
    if (!sensorReady_) return;
    // The emitter stays off until the refinement is entered again, even if the state still is the refinement.
    emitterState_ = State::RefiningCalibration;
    sensor_->setEmitter(false);
    sensor_->setPlatformImageWanted(camera_ == ColourCamera::Platform);
}

/// The emitter's dots improve depth where the user aligns it. During capture they would be matched instead of the
/// texture of the scene, so the emitter is off.
void CalibrationLoop::followEmitter(State state) {
    if (!sensorReady_ || state == emitterState_) return;
    emitterState_ = state;
    sensor_->setEmitter(state == State::RefiningCalibration);
}

bool CalibrationLoop::refreshViews(const Snapshot& now) {
    if (!sensorReady_ || !sensor_->grab(true)) return false;
    listener_.framesReady(now.state, camera_, sensor_->frames());
    return true;
}

void CalibrationLoop::step(const Snapshot& now) {
    switch (now.state) {
        case State::DetectingLighting:
            detectLighting();
            break;
        case State::ResetCalibration:
            resetCalibration(now);
            break;
        case State::StartingCalibration:
            startCalibration(now);
            break;
        case State::ProcessingFrame:
            if (!capturePaused_) processFrame(now);
            break;
        case State::FoundGoodSolution:
            takeSolution(now);
            break;
        case State::RefiningTutorial:
        case State::RefiningCalibration:
            listener_.refining(now.state);
            break;
        default:
            break;
    }
}

void CalibrationLoop::openCamera(const Snapshot& now) {
    sensor_ = makeSensor();
    if (!sensor_->open(applicationSettings()) ||
        !readCameraParameters(*sensor_, &factory_, [this] { listener_.singleCameraOnly(); })) {
        qInfo("Initialize failed.");
        // Faults of the library have already been reported. The remaining case is a module without a colour camera.
        if (!stop_) report("The depth camera was not found.", [this] { listener_.missingModule(); });
        return;
    }
    sensor_->setPlatformImageWanted(false);
    records_.setFactory(factory_.colour[ColourCamera::Third].fromDepth.rotation,
                        factory_.colour[ColourCamera::Platform].fromDepth.rotation);
    engine_.setCameraParameters(false);
    attempt_.useMemory(BaselineMemory(environment_.dataFolder), sensor_->serialNumber());
    sensorReady_ = true;
    reportLastSave();
    const QDateTime stored = lastStored(environment_.dataFolder, sensor_->serialNumber());
    if (stored.isValid()) listener_.lastCalibration(stored);
    advance(now, State::ShowingIntroduction);
}

/// Reports an interrupted save of this module. A note about a different module is kept until that one is connected.
void CalibrationLoop::reportLastSave() {
    if (const auto last = settleLastSave(*sensor_, environment_.dataFolder)) listener_.lastSaveSettled(*last);
}

/// Returns a sensor, still closed, whose faults are reported.
std::unique_ptr<Sensor> CalibrationLoop::makeSensor() {
    std::unique_ptr<Sensor> sensor = environment_.makeSensor();
    QObject::connect(sensor.get(), &Sensor::signal_reportKXAPIError,
                     [this](const QString& text) { report(text, [this, text] { listener_.deviceError(text); }); });
    QObject::connect(sensor.get(), &Sensor::signal_reportMissingQ550Device,
                     [this] { report("The depth camera was not found.", [this] { listener_.missingModule(); }); });
    QObject::connect(sensor.get(), &Sensor::signal_reportMissingPlatformCamera, [this] {
        report("The rear camera was not found.", [this] { listener_.missingPlatformCamera(); });
    });
    QObject::connect(sensor.get(), &Sensor::signal_reportPlatformCameraIssue, [this] {
        if (!stop_ && !std::exchange(platformIssueReported_, true)) listener_.platformCameraIssue();
        faultReported_ = faultReported_ || !sensorReady_;
    });
    sensor->setStopFlag(&giveUpWaiting_);
    return sensor;
}

/// Reports only the first fault. While the program is ending, errors are collected until everything is closed.
void CalibrationLoop::report(const QString& error, const std::function<void()>& tell) {
    if (stop_) {
        leavingErrors_.push_back(error);
    } else if (!std::exchange(faultReported_, true)) {
        tell();
    }
}

void CalibrationLoop::detectLighting() {
    std::uint16_t brightness = 0;
    engine_.measureInfraredBrightness(sensor_->frames().leftInfrared, &brightness);
    listener_.lightMeasured(light_.detect(brightness));
}

void CalibrationLoop::resetCalibration(const Snapshot& now) {
    engine_.resetState();
    listener_.startText({});  // clears any text that a cancelled attempt has left
    advance(now, State::WaitingToCalibrate);
}

void CalibrationLoop::startCalibration(const Snapshot& now) {
    records_.forgetEstimate(camera_);
    attempt_.start(camera_);
    detail_.clear();
    if (advance(now, State::ProcessingFrame)) listener_.calibrationProgress(0.0);
}

void CalibrationLoop::processFrame(const Snapshot& now) {
    if (!sensor_->isFreshPair(camera_)) return;
    const std::int32_t photosBefore = attempt_.photoCount();
    const FrameRecords& frames = sensor_->frames();
    const CalibrationAttempt::Outcome outcome =
        attempt_.processFrame({frames.leftInfrared, frames.colour[camera_], frames.rightInfrared, frames.depth});
    if (attempt_.photoCount() > photosBefore) reportPair();
    switch (outcome) {
        case CalibrationAttempt::Outcome::Continues:
            break;
        case CalibrationAttempt::Outcome::Solved:
            advance(now, State::FoundGoodSolution);
            break;
        case CalibrationAttempt::Outcome::Failed:
            if (!state_.advance(now, State::WaitingToCalibrate)) break;
            attempt_.fail();
            listener_.stateChanged(State::WaitingToCalibrate);
            break;
    }
}

void CalibrationLoop::reportPair() {
    const vq::SensorCalibrator& calibrator = engine_.calibrator();
    std::vector<double> areas;
    for (const int count : calibrator.grid().cellCounts())
        areas.push_back(std::min(1.0, static_cast<double>(count) / calibrator.parameters().cellMinimum));
    listener_.detailGathered(areas);
    listener_.photoJudged(photoWorth(calibrator.statistics().verified, detail_, areas));
    detail_ = areas;
}

void CalibrationLoop::takeSolution(const Snapshot& now) {
    Rotation estimated{};
    std::array<float, 3> translation{};
    engine_.getRotationMatrix(estimated.data());
    engine_.getTranslation(translation.data());
    solutions_.note(camera_, factory_, estimated, engine_.calibrator(), *sensor_);
    const bool isPlatform = camera_ == ColourCamera::Platform;
    if (isPlatform) qInfo("Out of module color sensor:");
    const CameraExtrinsics& stored = factory_.colour[camera_].fromDepth;
    logSolution(stored, estimated, translation);
    const FoundTurn turn = foundTurn(stored.rotation, estimated, engine_.quality());
    const State next = isPlatform ? State::RefiningCalibration : State::RefiningTutorial;
    if (!records_.setEstimated(camera_, estimated, [&] { return state_.advance(now, next); })) return;
    listener_.solutionFound(camera_, factory_, estimated, turn);
    listener_.stateChanged(next);
}

bool CalibrationLoop::advance(const Snapshot& from, State to) {
    if (!state_.advance(from, to)) return false;
    listener_.stateChanged(to);
    return true;
}

void CalibrationLoop::handOver(QThread* thread) {
    if (sensor_ != nullptr) sensor_->moveToThread(thread);
}

Sensor* CalibrationLoop::sensorForSave() {
    if (sensor_ == nullptr || !sensor_->faulted() || !records_.anyAccepted()) return sensor_.get();
    const std::uint32_t serial = sensor_->serialNumber();
    sensor_.reset();
    sensor_ = makeSensor();
    CameraParameters parameters;
    const bool open = sensor_->open(applicationSettings()) && readCameraParameters(*sensor_, &parameters, [] {});
    qInfo("The camera was reopened for the save: %s.", open ? "it answers" : "it does not answer");
    return open && sensor_->serialNumber() == serial ? sensor_.get() : nullptr;
}

CalibrationLoop::Errors CalibrationLoop::close() {
    sensorReady_ = false;
    const int errorsBefore = leavingErrors_.size();
    sensor_.reset();
    QStringList closing = leavingErrors_.mid(errorsBefore);
    return {std::exchange(leavingErrors_, {}), std::move(closing)};
}

}  // namespace fieldcal
