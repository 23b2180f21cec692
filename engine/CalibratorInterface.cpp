#include "engine/CalibratorInterface.h"

#include "diagnostics/Logger.h"
#include "engine/InfraredConversion.h"
#include "engine/Rotation.h"

namespace vq {
namespace {

using fieldcal::kInfo;
using fieldcal::logMessage;

constexpr float kMinimumFeatures = 30.0F;
constexpr int kPatientAttempts = 6;

}  // namespace

CalibratorInterface::CalibratorInterface(RegistrationContext& context, const fieldcal::CameraParameters& parameters,
                                         const SensorCalibratorParameters& tuning, const AccuracyGoal& goal)
    : calibrator_(context, tuning), goal_(goal), context_(context), parameters_(parameters) {}

std::int32_t CalibratorInterface::setup() {
    logMessage(kInfo, "CalibratorInterface::setup", "Preparing Calibrator");
    calibrator_.setup();
    firstPass_ = true;
    attempts_ = 0;
    featureTotal_ = 0;
    return 0;
}

CalibratorResult CalibratorInterface::inputFramesAndCheckMovement(const fieldcal::ImageFrame16& infrared,
                                                                  const fieldcal::ImageFrame32& colour) {
    const fieldcal::ImageFrame16 none;
    frameSelector_.push(infrared, colour, right_ != nullptr ? *right_ : none, depth_ != nullptr ? *depth_ : none);
    right_ = depth_ = nullptr;
    if (frameSelector_.shouldUseThisFrame(&selected_.infrared, &selected_.colour)) {
        selected_.right = frameSelector_.selectedRight();
        selected_.depth = frameSelector_.selectedDepth();
        selected_.motionPx = frameSelector_.selectedMotionPx();
        return {ProcessImagePair, "Proceeding with Calibration to process Image Pair"};
    }
    if (frameSelector_.state() == FrameSelector::WaitingToMove) {
        return {RotateDevice, "Please rotate the device left or right to continue."};
    }
    return {RemainStill, "Please remain still so the application can capture\nthe frame for calibration."};
}

CalibratorResult CalibratorInterface::inputImageAndTryCalibration() {
    constexpr const char* tag = "CalibratorInterface::inputImageAndTryCalibration";
    calibrator_.prepare(selected_);
    logMessage(kInfo, tag, "Generating matches...");
    calibrator_.generateMatches();
    const auto colourCount = static_cast<int>(calibrator_.matches().colour.size());
    const auto infraredCount = static_cast<int>(calibrator_.matches().infrared.size());
    logMessage(kInfo, tag, "Found %i and %i matches.", colourCount, infraredCount);
    ++attempts_;
    featureTotal_ += infraredCount;
    logMessage(kInfo, tag, "Current number of attempts: %i", attempts_);
    logMessage(kInfo, tag, "Current avg number of features: %f",
               static_cast<double>(static_cast<float>(featureTotal_) / static_cast<float>(attempts_)));
    const bool hadSolution = calibrator_.goodSolution();
    if (isSceneTooSimple() && !hadSolution) return {firstPass_ ? SceneTooSimple : SceneTooSimpleRepeated, ""};
    if (calibrator_.hasEnoughFilledCells()) {
        logMessage(kInfo, tag, "Trying to determine a stable solution...");
        calibrator_.tryDetermineStableSolution();
    } else if (!hadSolution) {
        return {NeedMoreImages, "Need more images to process"};
    }
    if (calibrator_.goodSolution() && isAccurateEnough()) return {GoodSolution, "Found good solution"};
    return {AddingFramesForConvergence, "Adding additional Frames for convergence"};
}

bool CalibratorInterface::isAccurateEnough() const {
    const std::optional<SolutionQuality> quality = calibrator_.quality();
    const bool meets = quality && quality->meets(goal_) && attempts_ >= goal_.leastPairs;
    return meets || attempts_ >= goal_.mostPairs;
}

bool CalibratorInterface::isSceneTooSimple() const {
    return attempts_ > kPatientAttempts &&
           static_cast<float>(featureTotal_) / static_cast<float>(attempts_) < kMinimumFeatures;
}

void CalibratorInterface::measureInfraredBrightness(const fieldcal::ImageFrame16& infrared, std::uint16_t* brightness) {
    *brightness =
        clippedMean(infrared.pixels(), static_cast<int>(infrared.width()), static_cast<int>(infrared.height()));
}

std::int32_t CalibratorInterface::resetState() {
    logMessage(kInfo, "CalibratorInterface::resetState", "resetting");
    calibrator_.reset();
    frameSelector_.reset();
    firstPass_ = true;
    attempts_ = 0;
    featureTotal_ = 0;
    return 0;
}

std::int32_t CalibratorInterface::setCameraParameters(bool platformCamera) {
    const std::lock_guard guard(context_.lock);
    context_.depthModel = parameters_.depth;
    context_.infraredModel = parameters_.infrared;
    const auto& colour =
        parameters_.colour[platformCamera ? fieldcal::ColourCamera::Platform : fieldcal::ColourCamera::Third];
    context_.colourModel = colour.model;
    context_.colourScaling = colour.scaling;
    context_.defaultExtrinsics = poseFromExtrinsics(colour.fromDepth);
    context_.state = std::make_unique<RegistrationState>();
    context_.state->setExtrinsics(context_.defaultExtrinsics);
    context_.currentAnglesDeg = context_.state->values();
    return 0;
}

float* CalibratorInterface::getTranslation(float out[3]) {
    const std::lock_guard guard(context_.lock);
    for (int i = 0; i < 3; ++i)
        out[i] = context_.defaultExtrinsics(i, 3);
    return out;
}

float* CalibratorInterface::getRotationMatrix(float out[9]) {
    Eigen::Vector3d anglesRad;
    {
        const std::lock_guard guard(context_.lock);
        const auto valuesDeg = context_.state->values();
        constexpr auto radiansPerDegree = static_cast<float>(fieldcal::kRadiansPerDegree);
        anglesRad = (Eigen::Vector3f(valuesDeg[0], valuesDeg[1], valuesDeg[2]) * radiansPerDegree).cast<double>();
    }
    Eigen::Map<Eigen::Matrix<float, 3, 3, Eigen::RowMajor>> matrix(out);
    matrix = rotationFromAngles(anglesRad).cast<float>();
    return out;
}

void CalibratorInterface::setTouchAreaSize(float width, float height) {
    const std::lock_guard guard(context_.lock);
    context_.state->setTouchAreaSize(width, height);
}

void CalibratorInterface::setDragAreaSize(float width, float height) {
    const std::lock_guard guard(context_.lock);
    context_.state->setDragAreaSize(width, height);
}

void CalibratorInterface::beginDrag(std::int32_t x, std::int32_t y) {
    const std::lock_guard guard(context_.lock);
    context_.state->beginDrag(static_cast<float>(x), static_cast<float>(y));
}

void CalibratorInterface::drag(std::int32_t x, std::int32_t /*y*/) {
    const std::lock_guard guard(context_.lock);
    context_.state->drag(static_cast<float>(x));
    context_.currentAnglesDeg = context_.state->values();
}

void CalibratorInterface::endDrag() {
    const std::lock_guard guard(context_.lock);
    context_.state->endDrag();
}

void CalibratorInterface::inputDistanceFrames(const fieldcal::ImageFrame16& right,
                                              const fieldcal::ImageFrame16& depth) {
    right_ = &right;
    depth_ = &depth;
}

void CalibratorInterface::setRememberedBaseline(double metres) {
    calibrator_.setRememberedBaseline(metres);
}

}  // namespace vq
