#include "engine/SensorCalibrator.h"

#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "engine/MatchVerification.h"
#include "engine/Rotation.h"
#include "engine/Stopwatch.h"

#include <cmath>

namespace vq {
namespace {

using fieldcal::kError;
using fieldcal::kInfo;
using fieldcal::logMessage;

constexpr double kMatcherMarginDeg = 0.2;
constexpr int kToleratedFailures = 3;

bool hasSize(const ImagePairRecord& record, const fieldcal::CameraModel& model) {
    return model.width > 0 && model.height > 0 && record.width == static_cast<std::uint32_t>(model.width) &&
           record.height == static_cast<std::uint32_t>(model.height);
}

cv::Mat asMatrix(const ImagePairRecord& record, int type) {
    return {static_cast<int>(record.height), static_cast<int>(record.width), type,
            const_cast<std::uint8_t*>(record.pixels.data())};
}

std::array<double, 3> degrees(const Eigen::Vector3d& rad) {
    return {rad[0] * kDegreesPerRadian, rad[1] * kDegreesPerRadian, rad[2] * kDegreesPerRadian};
}

SensorCalibratorParameters checked(const SensorCalibratorParameters& parameters) {
    std::string why;
    FIELDCAL_ASSERT(parameters.isValid(&why), "%s", why.c_str());
    return parameters;
}

}  // namespace

SensorCalibrator::SensorCalibrator(RegistrationContext& context, const SensorCalibratorParameters& parameters)
    : context_(context),
      parameters_(checked(parameters)),
      grid_(parameters.gridColumns, parameters.gridRows, parameters.cellMinimum) {}

CameraPair SensorCalibrator::cameraPair() const {
    const std::lock_guard guard(context_.lock);
    return {context_.infraredModel, context_.colourModel, context_.colourScaling};
}

void SensorCalibrator::setup() {
    RotationSearch search;
    search.cameras = cameras_ = cameraPair();
    search.stepDeg = parameters_.angleSearchStep;
    search.workingCount = parameters_.workingCount;
    {
        const std::lock_guard guard(context_.lock);
        const auto valuesDeg = context_.state->values();
        search.initialAnglesRad = Eigen::Vector3f(valuesDeg[0], valuesDeg[1], valuesDeg[2]) / kDegreesPerRadian;
    }
    matcher_.setup(cameras_, search.initialAnglesRad.cast<double>(), search.range, kMatcherMarginDeg);
    estimator_.setup(search);
    frameUsable_ = false;
}

bool SensorCalibrator::prepare(const ImagePairRecord& infrared, const ImagePairRecord& colour) {
    frameUsable_ = hasSize(infrared, cameras_.infrared) && hasSize(colour, cameras_.colour);
    if (!frameUsable_) {
        logMessage(kError, "SensorCalibrator::prepare",
                   "The pair [%u x %u] and [%u x %u] does not belong to cameras of [%d x %d] and [%d x %d]",
                   infrared.width, infrared.height, colour.width, colour.height, cameras_.infrared.width,
                   cameras_.infrared.height, cameras_.colour.width, cameras_.colour.height);
        matcher_.statistics() = {};
        return false;
    }
    if (estimator_.stopped()) return frameUsable_ = false;
    matcher_.prepare(asMatrix(infrared, CV_16UC1), asMatrix(colour, CV_8UC4), parameters_.infraredConversionMode);
    return true;
}

void SensorCalibrator::generateMatches(bool keep, MatchLists* beforeVerification, MatchLists* afterVerification) {
    constexpr const char* tag = "SensorCalibrator::generateMatches";
    const auto size = [](const std::vector<cv::Point2f>& points) { return static_cast<int>(points.size()); };
    matches_.colour.clear();
    matches_.infrared.clear();
    grid_.beginPair();
    frameUsable_ = frameUsable_ && !estimator_.stopped();
    if (frameUsable_) matcher_.findCrossModalMatches(&matches_.colour, &matches_.infrared);
    logMessage(kInfo, tag, "number of matches: rgb = %d, ir = %d", size(matches_.colour), size(matches_.infrared));
    if (keep && beforeVerification != nullptr) *beforeVerification = matches_;

    if (estimator_.stopped()) matches_ = {};
    Stopwatch watch;
    verifyMatches(matcher_.grey(), matcher_.infrared(), &matches_.colour, &matches_.infrared);
    matcher_.statistics().verificationSeconds = watch.lap();
    matcher_.statistics().verified = size(matches_.infrared);
    logMessage(kInfo, tag, "number of matches after ZNCC: rgb = %d, ir = %d", size(matches_.colour),
               size(matches_.infrared));
    if (keep && afterVerification != nullptr) *afterVerification = matches_;

    appendToAttempt();
    if (!hasEnoughFilledCells()) frameUsable_ = false;
}

void SensorCalibrator::appendToAttempt() {
    std::vector<cv::Point2f> colourModelPoints;
    colourModelPoints.reserve(matches_.colour.size());
    for (const cv::Point2f& point : matches_.colour)
        colourModelPoints.push_back(cameras_.colourModelPoint(point));
    grid_.add(colourModelPoints, matches_.infrared, cameras_.infrared.width, cameras_.infrared.height);
    attemptMatches_.colour.insert(attemptMatches_.colour.end(), colourModelPoints.begin(), colourModelPoints.end());
    attemptMatches_.infrared.insert(attemptMatches_.infrared.end(), matches_.infrared.begin(), matches_.infrared.end());
}

bool SensorCalibrator::hasEnoughFilledCells() const {
    const auto tolerated =
        static_cast<float>(parameters_.gridColumns * parameters_.gridRows) * parameters_.cellFillFraction;
    return tolerated >= static_cast<float>(grid_.underfilledCells());
}

void SensorCalibrator::tryDetermineStableSolution() {
    Stopwatch watch;
    decisionBusy_ = true;
    {
        const std::lock_guard guard(lock_);
        decide();
    }
    matcher_.statistics().estimationSeconds = watch.lap();
}

void SensorCalibrator::decide() {
    Eigen::Vector3d anglesRad;
    const bool agreed = estimator_.estimateRotationByVoting(grid_, parameters_.supportCount, &anglesRad);
    ++attemptCount_;
    const bool inRange = isAcceptable(anglesRad);
    outOfRange_ = !inRange;
    if (agreed && inRange) {
        failureStreak_ = 0;
        if (!goodSolution_) recordSolution();
    } else {
        countFailure();
    }
    recordingBusy_ = false;
    decisionBusy_ = false;
}

bool SensorCalibrator::isAcceptable(const Eigen::Vector3d& anglesRad) const {
    const std::lock_guard guard(context_.lock);
    return context_.state->allInRange(degrees(anglesRad));
}

void SensorCalibrator::countFailure() {
    if (++failureStreak_ <= kToleratedFailures) return;
    grid_.clear();
    attemptMatches_ = {};
    failureStreak_ = 0;
}

void SensorCalibrator::recordSolution() {
    recordingBusy_ = true;
    goodSolution_ = false;
    deviationDeg_.reset();
    const RotationVoteStore::Record* best = estimator_.lastBest();
    if (best == nullptr || std::isnan(best->anglesRad[0])) return;
    Eigen::Vector3d anglesRad = best->anglesRad;
    PolishedRotation polished;
    if (polishRotation(attemptMatches_.infrared, attemptMatches_.colour, cameras_, anglesRad, &polished) &&
        isAcceptable(polished.anglesRad)) {
        anglesRad = polished.anglesRad;
        deviationDeg_ = degrees(polished.deviationRad);
    }
    const Eigen::Vector3f anglesDeg = (anglesRad * kDegreesPerRadian).cast<float>();
    {
        const std::lock_guard guard(context_.lock);
        context_.state->setValues(anglesDeg[0], anglesDeg[1], anglesDeg[2]);
        context_.currentAnglesDeg = context_.state->values();
    }
    const float support = static_cast<float>(best->votes) / static_cast<float>(parameters_.supportCount);
    if (support >= 1.0F && attemptCount_ >= parameters_.minimumAttempts) goodSolution_ = true;
}

void SensorCalibrator::reset() {
    const std::lock_guard guard(lock_);
    grid_.clear();
    attemptMatches_ = {};
    estimator_.forgetResults();
    attemptCount_ = 0;
    failureStreak_ = 0;
    goodSolution_ = false;
    outOfRange_ = false;
    deviationDeg_.reset();
}

}  // namespace vq
