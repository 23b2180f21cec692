#include "workflow/CalibrationAttempt.h"

#include <QtGlobal>

namespace fieldcal {
namespace {

constexpr const char* kMoveText =
    QT_TRANSLATE_NOOP("Interface", "Move the device to capture a different calibration photo.");
constexpr const char* kPauseText = QT_TRANSLATE_NOOP("Interface", "Pause to capture a calibration photo.");
constexpr const char* kTooSimpleText =
    QT_TRANSLATE_NOOP("Interface",
                      "Calibration isn't working because the scenery in these photos is too simple.\n"
                      "Let's try again. Point at interesting scenery like buildings or trees.");

}  // namespace

double progressAfterPairs(std::int32_t pairs) {
    return pairs <= 4 ? pairs / 5.0 : 0.9;
}

CalibrationAttempt::CalibrationAttempt(vq::ICalibrator& calibrator, AttemptListener& listener, const LightGate& light,
                                       std::int32_t pairLimit)
    : calibrator_(calibrator), listener_(listener), light_(light), pairLimit_(pairLimit) {}

void CalibrationAttempt::useMemory(const BaselineMemory& memory, std::uint32_t serial) {
    memory_ = memory;
    serial_ = serial;
}

void CalibrationAttempt::start(ColourCamera camera) {
    calibrator_.resetState();
    calibrator_.setCameraParameters(camera == ColourCamera::Platform);
    if (memory_) calibrator_.setRememberedBaseline(memory_->find(serial_).value_or(0));
    calibrator_.setup();
    photoCount_ = 0;
    running_ = true;
}

CalibrationAttempt::Outcome CalibrationAttempt::processFrame(const CaptureFrames& frames) {
    if (!running_ || frames.infrared.empty() || frames.colour.empty()) return Outcome::Continues;
    qInfo("Checking the lighting condition...");
    std::uint16_t brightness = 0;
    calibrator_.measureInfraredBrightness(frames.infrared, &brightness);
    const bool lit = light_.isLitForCapture(brightness);
    listener_.returnToWellLitArea(!lit);
    if (!lit) {
        listener_.movementText("", false);
        return Outcome::Continues;
    }
    calibrator_.inputDistanceFrames(frames.right, frames.depth);
    switch (calibrator_.inputFramesAndCheckMovement(frames.infrared, frames.colour).code) {
        case vq::RotateDevice:
            listener_.movementText(kMoveText, false);
            break;
        case vq::RemainStill:
            listener_.movementText(kPauseText, true);
            break;
        case vq::ProcessImagePair:
            return addPair(frames);
        default:
            break;
    }
    return Outcome::Continues;
}

CalibrationAttempt::Outcome CalibrationAttempt::addPair(const CaptureFrames& frames) {
    qInfo("Adding new infrared color pair...");
    listener_.pairCaptured();
    listener_.pairImages(frames.infrared, frames.colour);
    const vq::CalibratorResult result = calibrator_.inputImageAndTryCalibration();
    ++photoCount_;
    listener_.calibrationProgress(progressAfterPairs(photoCount_));
    listener_.pairProcessed(result);
    const Outcome outcome = judge(result);
    if (outcome == Outcome::Solved) rememberBaseline();
    running_ = outcome == Outcome::Continues;
    return outcome;
}

CalibrationAttempt::Outcome CalibrationAttempt::finish() {
    if (!running_ || !calibrator_.hasSolution()) return Outcome::Continues;
    running_ = false;
    rememberBaseline();
    return Outcome::Solved;
}

/// A solution is accepted even when it comes with the last permitted pair, or when no more pairs are permitted to
/// improve it.
CalibrationAttempt::Outcome CalibrationAttempt::judge(const vq::CalibratorResult& result) const {
    if (result.code == vq::GoodSolution) {
        qInfo("Found a good solution!");
        return Outcome::Solved;
    }
    if (result.code == vq::NeedMoreImages) qInfo("Could not get a sample set from this image..");
    if (result.code == vq::AddingFramesForConvergence) qInfo("Continue processing");
    const bool failed = result.code == vq::SceneTooSimple || photoCount_ >= pairLimit_;
    if (failed && calibrator_.hasSolution()) return Outcome::Solved;
    return failed ? Outcome::Failed : Outcome::Continues;
}

/// Stores the measured baseline, unless it came from the stored baselines itself.
void CalibrationAttempt::rememberBaseline() const {
    const vq::ParallaxReport parallax = calibrator_.parallax();
    const bool measured =
        parallax.baselineFrom == vq::BaselineSource::Depth || parallax.baselineFrom == vq::BaselineSource::Fit;
    if (memory_ && measured && parallax.baselineM) memory_->remember(serial_, *parallax.baselineM);
}

void CalibrationAttempt::fail() {
    photoCount_ = 0;
    calibrator_.resetState();
    listener_.startText(kTooSimpleText);
    listener_.movementText("", false);
    listener_.offerHowToMove();
}

}  // namespace fieldcal
