#include "tools/RecordingCalibration.h"

#include "devices/CameraParameterReader.h"
#include "engine/RegistrationError.h"
#include "engine/Rotation.h"
#include "workflow/Saving.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace fieldcal {
namespace {

constexpr int kRegistrationDistancesM[] = {1, 2, 5, 20};

}  // namespace

RecordingCalibration::RecordingCalibration(std::string folder, session::SessionDescription session, ColourCamera camera,
                                           std::function<void(const QString&)> showProgress,
                                           SensorEnvironment environment)
    : folder_(std::move(folder)),
      session_(std::move(session)),
      camera_(camera),
      showProgress_(std::move(showProgress)),
      environment_(std::move(environment)),
      engine_(context_, parameters_) {}

bool RecordingCalibration::run(QString* why) {
    vq::Stopwatch watch;
    // The library reads the name in the local encoding, which is not UTF-8 on every system.
    qputenv("KXSIM_SESSION", QString::fromStdString(folder_).toLocal8Bit());
    qputenv("KXSIM_SPEED", "0");
    bool played = false;
    {
        Sensor sensor(environment_);
        if (open(sensor, why)) {
            CalibrationAttempt attempt(engine_, *this, light_, sensor.settings().attemptLimit);
            if (memory_) attempt.useMemory(*memory_, sensor.serialNumber());
            bool solved = false;
            if (writing_) reportLastSave(sensor);
            played = play(sensor, attempt, &solved);
            finish(solved);
            if (writing_ && solved) played = write(sensor, why) && played;
        }
    }
    report_.totalSeconds = watch.lap();
    if (report_.written == false) return false;
    if (!reports_.first().isEmpty()) *why = reports_.first();
    return played && reports_.first().isEmpty();
}

bool RecordingCalibration::open(Sensor& sensor, QString* why) {
    reports_.listenTo(sensor);
    SensorSettings settings = applicationSettings();
    settings.usePlatformCamera = session_.platform.has_value();
    *why = "The camera could not be opened.";
    if (!sensor.open(settings) || !readCameraParameters(sensor, &parameters_, [] {})) return false;
    sensor.setPlatformImageWanted(camera_ == ColourCamera::Platform);
    if (camera_ == ColourCamera::Third || sensor.settings().usePlatformCamera) return true;
    *why = "The module has no usable calibration of the rear camera.";
    return false;
}

/// Returns false when the sensor fails before the recording ends.
bool RecordingCalibration::play(Sensor& sensor, CalibrationAttempt& attempt, bool* solved) {
    const int grabs = session_.grabCount();
    vq::Stopwatch frameWatch;
    attempt.start(camera_);
    while (report_.framesUsed < grabs && !*solved) {
        const std::size_t pairsBefore = report_.pairs.size();
        frameWatch.lap();
        if (!sensor.grab(true) || !reports_.first().isEmpty()) return false;
        ++report_.framesUsed;
        const FrameRecords& frames = sensor.frames();
        const auto outcome =
            attempt.processFrame({frames.leftInfrared, frames.colour[camera_], frames.rightInfrared, frames.depth});
        report_.frameSeconds += frameWatch.lap();
        *solved = outcome == CalibrationAttempt::Outcome::Solved;
        if (outcome == CalibrationAttempt::Outcome::Failed) {
            attempt.fail();
            attempt.start(camera_);
        }
        if (report_.pairs.size() > pairsBefore) report_.frameSeconds -= report_.pairs.back().seconds;
    }
    if (!*solved) *solved = attempt.finish() == CalibrationAttempt::Outcome::Solved;
    return true;
}

void RecordingCalibration::finish(bool solved) {
    const auto& factory = parameters_.colour[camera_].fromDepth;
    report_.camera = camera_;
    report_.factoryRotation = report_.rotation = widened(factory.rotation.data());
    report_.solved = solved;
    if (solved) {
        std::array<float, 9> rotation{};
        engine_.getRotationMatrix(rotation.data());
        report_.rotation = widened(rotation.data());
        report_.quality = engine_.calibrator().quality();
        evidence_ = engine_.calibrator().evidence();
        const auto& truth = camera_ == ColourCamera::Platform ? session_.truthPlatform : session_.truthThird;
        if (truth) {
            report_.errorDeg = angleBetweenDeg(report_.rotation, *truth);
            report_.registrationPx = registrationErrors(*truth);
        }
    }
    const Eigen::Vector3d anglesRad = vq::anglesFromRotation(vq::matrixOf(report_.rotation));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        report_.anglesDeg[axis] = anglesRad[static_cast<Eigen::Index>(axis)] * vq::kDegreesPerRadian;
    }
}

/// Returns no errors for a recording without depth, where no surface can be assigned a colour.
std::map<int, double> RecordingCalibration::registrationErrors(const Matrix3& truth) const {
    const auto hasDepth = [](const session::FrameEntry& frame) { return !frame.depth.empty(); };
    if (std::none_of(session_.frames.begin(), session_.frames.end(), hasDepth)) return {};
    const ColourCameraParameters& colour = parameters_.colour[camera_];
    const vq::CameraPair cameras{parameters_.infrared, colour.model, colour.scaling};
    const vq::Projection projection{
        cameras, Eigen::Map<const Eigen::Vector3f>(colour.fromDepth.translation.data()).cast<double>()};
    std::map<int, double> errorsPx;
    for (const int metres : kRegistrationDistancesM) {
        errorsPx[metres] = vq::registrationErrorPx(projection, vq::matrixOf(report_.rotation), vq::matrixOf(truth),
                                                   1.0 / metres, 1.0 / metres);
    }
    return errorsPx;
}

/// Called before the write, because the note about this write replaces the note about the last save.
void RecordingCalibration::reportLastSave(Sensor& sensor) {
    const auto last = settleLastSave(sensor, userDataFolder());
    if (!last) return;
    report_.lastSave = lastSaveText(*last);
    if (showProgress_) showProgress_(report_.lastSave);
}

bool RecordingCalibration::write(Sensor& sensor, QString* why) {
    Rotation rotation{};
    engine_.getRotationMatrix(rotation.data());
    PerColourCamera<Rotation> wanted;
    PerColourCamera<std::optional<Rotation>> estimated;
    for (const ColourCamera camera : kColourCameras)
        wanted[camera] = camera == camera_ ? rotation : parameters_.colour[camera].fromDepth.rotation;
    estimated[camera_] = rotation;
    report_.written = storeRotations(sensor, wanted, estimated, userDataFolder()).stored;
    const WriteBackReport& done = sensor.writeBack();
    writeBack_ = done;
    if (*report_.written) {
        if (showProgress_) showProgress_(flashText(done) + " The previous one is kept in " + done.backupFile);
    } else {
        *why = QString("%1 (%2)").arg(done.reason, flashText(done));
    }
    return *report_.written;
}

ServiceReport RecordingCalibration::serviceReport() const {
    ServiceReport report;
    report.time = QDateTime::currentDateTimeUtc();
    report.program = "fieldcal-session " FIELDCAL_VERSION;
    report.serial = session_.module.serial;
    report.firmware = QString::fromStdString(session_.module.firmware);
    report.source = QDir::cleanPath(QString::fromStdString(folder_));
    ReportedCamera camera;
    camera.camera = camera_;
    camera.stored = vq::matrixOf(report_.factoryRotation);
    camera.found = camera.accepted = vq::matrixOf(report_.rotation);
    camera.quality = report_.quality;
    camera.evidence = evidence_;
    camera.parallax = report_.parallax;
    report.cameras.push_back(camera);
    if (writeBack_)
        report.write = {*report_.written, flashText(*writeBack_), writeBack_->reason, writeBack_->backupFile};
    return report;
}

vq::CalibrationState RecordingCalibration::engineState() const {
    vq::Pose pose = context_.defaultExtrinsics;
    pose.topLeftCorner<3, 3>() = vq::matrixOf(report_.rotation).cast<float>();
    return vq::calibrationState(context_.infraredModel, parameters_.colour[ColourCamera::Third].model,
                                context_.colourModel, pose, camera_ == ColourCamera::Platform ? 1 : 0);
}

void RecordingCalibration::pairCaptured() {
    pairWatch_.lap();
}

void RecordingCalibration::pairProcessed(const vq::CalibratorResult& result) {
    PairReport pair{engine_.calibrator().statistics(), result.code, pairWatch_.lap()};
    report_.pairs.push_back(pair);
    report_.parallax = engine_.parallax();
    if (!showProgress_) return;
    showProgress_(QString("pair %1: %2 infrared and %3 colour corners, %4 matched, %5 verified; answer %6, %7 ms")
                      .arg(report_.pairs.size())
                      .arg(pair.statistics.infraredCorners)
                      .arg(pair.statistics.colourCorners)
                      .arg(pair.statistics.matched)
                      .arg(pair.statistics.verified)
                      .arg(result.code)
                      .arg(pair.seconds * 1e3, 0, 'f', 0));
}

void RecordingCalibration::startText(const std::string& text) {
    if (showProgress_) showProgress_(QString::fromStdString(text).replace('\n', ' '));
}

void RecordingCalibration::returnToWellLitArea(bool needed) {
    if (showProgress_ && needed && !dark_) showProgress_("too dark: waiting for sunlight");
    dark_ = needed;
}

}  // namespace fieldcal
