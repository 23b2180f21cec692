#include "engine/SensorCalibrator.h"

#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "engine/MatchVerification.h"
#include "engine/PatchAlignment.h"
#include "engine/Rotation.h"
#include "engine/Stopwatch.h"

#include <algorithm>
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

Projection SensorCalibrator::projection() const {
    const std::lock_guard guard(context_.lock);
    return {{context_.infraredModel, context_.colourModel, context_.colourScaling},
            context_.defaultExtrinsics.topRightCorner<3, 1>().cast<double>()};
}

void SensorCalibrator::setup() {
    projection_ = projection();
    RotationSearch search;
    search.cameras = projection_.cameras;
    search.stepDeg = parameters_.angleSearchStep;
    search.workingCount = parameters_.workingCount;
    fieldcal::CameraModel depthModel;
    {
        const std::lock_guard guard(context_.lock);
        const auto valuesDeg = context_.state->values();
        search.initialAnglesRad = Eigen::Vector3f(valuesDeg[0], valuesDeg[1], valuesDeg[2]) / kDegreesPerRadian;
        depthModel = context_.depthModel;
    }
    initialRotation_ = rotationFromAngles(search.initialAnglesRad.cast<double>());
    matcher_.setup(search.cameras, search.initialAnglesRad.cast<double>(), search.range, kMatcherMarginDeg);
    estimator_.setup(search);
    meter_.setup(search.cameras.infrared, depthModel, rememberedBaselineM_);
    record_.setup(projection_, initialRotation_);
    frameUsable_ = false;
}

bool SensorCalibrator::prepare(const SelectedImages& images) {
    const ImagePairRecord &infrared = images.infrared, &colour = images.colour;
    const CameraPair& cameras = projection_.cameras;
    motionPx_ = images.motionPx;
    frameUsable_ = hasSize(infrared, cameras.infrared) && hasSize(colour, cameras.colour);
    if (!frameUsable_) {
        logMessage(kError, "SensorCalibrator::prepare",
                   "The pair [%u x %u] and [%u x %u] does not belong to cameras of [%d x %d] and [%d x %d]",
                   infrared.width, infrared.height, colour.width, colour.height, cameras.infrared.width,
                   cameras.infrared.height, cameras.colour.width, cameras.colour.height);
        matcher_.statistics() = {};
        return false;
    }
    if (estimator_.stopped()) return frameUsable_ = false;
    meter_.beginPair(asMatrix(infrared, CV_16UC1), asMatrix(images.right, CV_16UC1), asMatrix(images.depth, CV_16UC1));
    matcher_.prepare(asMatrix(infrared, CV_16UC1), asMatrix(colour, CV_8UC4), parameters_.infraredConversionMode);
    return true;
}

void SensorCalibrator::generateMatches(bool keep, MatchLists* beforeVerification, MatchLists* afterVerification) {
    constexpr const char* tag = "SensorCalibrator::generateMatches";
    const auto size = [](const std::vector<cv::Point2f>& points) { return static_cast<int>(points.size()); };
    matches_ = {};
    grid_.beginPair();
    frameUsable_ = frameUsable_ && !estimator_.stopped();
    if (frameUsable_) {
        matcher_.findCrossModalMatches(&matches_.colour, &matches_.infrared,
                                       [this](const auto& corners) { return possibleShifts(corners); });
    }
    logMessage(kInfo, tag, "number of matches: rgb = %d, ir = %d", size(matches_.colour), size(matches_.infrared));
    if (keep && beforeVerification != nullptr) *beforeVerification = matches_;

    if (estimator_.stopped()) matches_ = {};
    Stopwatch watch;
    verifyMatches(matcher_.grey(), matcher_.infrared(), &matches_.colour, &matches_.infrared, &matches_.exactInfrared);
    matcher_.statistics().verificationSeconds = watch.lap();
    matcher_.statistics().verified = size(matches_.infrared);
    logMessage(kInfo, tag, "number of matches after ZNCC: rgb = %d, ir = %d", size(matches_.colour),
               size(matches_.infrared));
    if (keep && afterVerification != nullptr) *afterVerification = matches_;

    appendToAttempt();
    if (!hasEnoughFilledCells()) frameUsable_ = false;
}

std::vector<ParallaxShift> SensorCalibrator::possibleShifts(const std::vector<cv::Point2f>& infraredCorners) const {
    const StereoScale assumed = meter_.assumedScale();
    const StereoScale* scale = meter_.scale() != nullptr ? meter_.scale() : &assumed;
    std::vector<ParallaxShift> shifts;
    shifts.reserve(infraredCorners.size());
    for (const MeasuredPlace& place : meter_.lookUp(infraredCorners))
        shifts.push_back(possibleShift(projection_, initialRotation_, place, scale, meter_.seesDisparities()));
    return shifts;
}

/// Measures the distances of the verified matches at their exact positions, and of the textured places that may be
/// aligned.
void SensorCalibrator::measureDistances(std::vector<MeasuredPlace>* matches,
                                        std::vector<MeasuredPlace>* texturedPlaces) {
    Stopwatch watch;
    std::vector<cv::Point2f> points = matches_.exactInfrared;
    const std::vector<cv::Point2f> textured = vq::texturedPlaces(matcher_.infrared());
    points.insert(points.end(), textured.begin(), textured.end());
    std::vector<MeasuredPlace> places = meter_.lookUp(points);
    meter_.refine(&places);
    meter_.learnFrom(places);
    const auto end = places.begin() + static_cast<std::ptrdiff_t>(matches_.exactInfrared.size());
    matches->assign(places.begin(), end);
    texturedPlaces->assign(end, places.end());
    matcher_.statistics().distanceSeconds += watch.lap();
}

void SensorCalibrator::appendToAttempt() {
    std::vector<MeasuredPlace> places, textured;
    if (frameUsable_) measureDistances(&places, &textured);
    places.resize(matches_.colour.size());
    const StereoScale assumed = meter_.assumedScale();
    const StereoScale* scale = meter_.scale() != nullptr ? meter_.scale() : &assumed;
    std::vector<MeasuredMatch> measured;
    std::vector<cv::Point2f> colourPoints, infraredPoints;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const cv::Point2f colour = projection_.cameras.colourModelPoint(matches_.colour[i]);
        const double inverseDepth = inverseDepthOf(places[i], scale);
        const bool isPlaced = !std::isnan(inverseDepth) || isFarAway(places[i]);
        if (isPlaced || meter_.seesDisparities()) measured.push_back({places[i], colour});
        if (!isPlaced) continue;
        colourPoints.push_back(colour);
        infraredPoints.push_back(std::isnan(inverseDepth) ? matches_.infrared[i]
                                                          : projection_.withoutParallax(
                                                                initialRotation_, matches_.infrared[i], inverseDepth));
    }
    if (!meter_.seesDisparities()) {
        // Without disparities, a place of unknown distance counts as infinitely far, so only places that are far may
        // stay.
        textured.erase(std::remove_if(textured.begin(), textured.end(),
                                      [&](const MeasuredPlace& place) {
                                          return std::isnan(inverseDepthOf(place, scale)) && !isFarAway(place);
                                      }),
                       textured.end());
    }
    const fieldcal::CameraModel& infrared = projection_.cameras.infrared;
    grid_.add(colourPoints, infraredPoints, infrared.width, infrared.height);
    if (frameUsable_) {
        record_.addPair({matcher_.infrared(), matcher_.grey(), std::move(measured), std::move(textured),
                         meter_.seesDisparities(), motionPx_});
    }
}

/// Returns whether a match without a distance may count as infinitely far: when no distance could be measured at all,
/// or when the depth image shows that nothing is within its range there.
bool SensorCalibrator::isFarAway(const MeasuredPlace& place) const {
    return meter_.seesDepth() ? meter_.isBeyondDepth(place.infrared) : !meter_.seesDisparities();
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
        recordSolution();
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
    record_.clear();
    failureStreak_ = 0;
}

/// Once good, a solution stays good; later pairs only improve it.
void SensorCalibrator::recordSolution() {
    recordingBusy_ = true;
    const RotationVoteStore::Record* best = estimator_.lastBest();
    if (best == nullptr || std::isnan(best->anglesRad[0])) return;
    Eigen::Vector3d anglesRad = best->anglesRad;
    const float support = static_cast<float>(best->votes) / static_cast<float>(parameters_.supportCount);
    const bool isGood = support >= 1.0F && attemptCount_ >= parameters_.minimumAttempts;
    // Until the solution is good, more pairs follow and the result of the final fit would be discarded.
    const auto polished = isGood ? record_.polish(anglesRad) : std::nullopt;
    const bool stands = polished && isAcceptable(polished->anglesRad);
    if (goodSolution_ && !stands) return;
    quality_.reset();
    if (stands) {
        anglesRad = polished->anglesRad;
        // With too few blocks of matches the deviation cannot be estimated.
        if (std::isfinite(polished->quality.deviationDeg[0])) quality_ = polished->quality;
    }
    const Eigen::Vector3f anglesDeg = (anglesRad * kDegreesPerRadian).cast<float>();
    {
        const std::lock_guard guard(context_.lock);
        context_.state->setValues(anglesDeg[0], anglesDeg[1], anglesDeg[2]);
        context_.currentAnglesDeg = context_.state->values();
    }
    if (isGood) goodSolution_ = true;
}

void SensorCalibrator::reset() {
    const std::lock_guard guard(lock_);
    grid_.clear();
    record_.clear();
    meter_.reset();
    estimator_.forgetResults();
    attemptCount_ = 0;
    failureStreak_ = 0;
    goodSolution_ = false;
    outOfRange_ = false;
    quality_.reset();
}

}  // namespace vq
