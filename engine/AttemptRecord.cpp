#include "engine/AttemptRecord.h"

#include "engine/Median.h"
#include "engine/PatchAlignment.h"
#include "engine/Rotation.h"
#include "engine/SolutionJudge.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>

namespace vq {
namespace {

constexpr double kMatchCauchyPx = 0.3;
constexpr double kPatchCauchy = 1.5;  ///< in standard deviations
constexpr double kNearPx = 12.0;
constexpr double kMaxDepartureRad = 0.25 / kDegreesPerRadian;
constexpr double kMaxAlignmentRad = 0.1 / kDegreesPerRadian;
constexpr std::size_t kMinimumMatches = 30;
constexpr std::size_t kMinimumPatches = 150;
constexpr std::size_t kMinimumPatchesOfPair = 50;
constexpr std::size_t kMinimumPairsToCompare = 3;
/// Largest accepted difference between one pair's rotation about X or Y and the median of all pairs. On photographs
/// these rotations scatter by 0.015°.
constexpr double kPairDepartureRad = 0.03 / kDegreesPerRadian;
/// Motion of the infrared image from one frame to the next that a device held still shows, and the margin over the
/// stillest pair that another pair may have. Colour is exposed some milliseconds after infrared, so motion between the
/// exposures appears as rotation.
constexpr float kStillPx = 0.5F;
constexpr float kStillShare = 1.5F;
constexpr std::size_t kMaxPerArea = 60;

/// Conditions that a fit has to meet before its estimate of the stereo baseline is used.
constexpr std::size_t kMinimumForScale = 100;
constexpr double kLargestScaleDeviation = 0.25;
constexpr double kSmallestBaselineM = 0.015, kLargestBaselineM = 0.2;
/// A wrong disparity of a near place has more influence on the scale than hundreds of correct ones, and its match was
/// searched for where the assumed scale predicts it. So this share of the largest and of the smallest disparities is
/// left out.
constexpr double kExtremeShare = 0.02;
/// Patches are aligned again when the scale has changed by this share.
constexpr double kScaleChange = 0.03;

constexpr double kFarInverseDepth = 0.01;

/// Limits the number of matches per area of the infrared image, keeping an even selection within each area. A
/// foreground full of detail must not outvote the rest of the scene.
std::vector<MeasuredMatch> balanced(const std::vector<MeasuredMatch>& matches, const fieldcal::CameraModel& infrared) {
    std::array<std::vector<const MeasuredMatch*>, kAreaCount> areas;
    for (const MeasuredMatch& match : matches)
        areas[areaOf(match.place.infrared, infrared)].push_back(&match);
    std::vector<MeasuredMatch> kept;
    for (const auto& area : areas) {
        const std::size_t count = std::min(area.size(), kMaxPerArea);
        for (std::size_t i = 0; i < count; ++i)
            kept.push_back(*area[i * area.size() / count]);
    }
    return kept;
}

/// Keeps the order of the matches.
void withoutExtremeDisparities(std::vector<MeasuredMatch>* matches) {
    std::vector<float> disparities;
    for (const MeasuredMatch& match : *matches)
        disparities.push_back(match.place.disparityPx);
    std::sort(disparities.begin(), disparities.end());
    const auto left = static_cast<std::size_t>(std::ceil(kExtremeShare * static_cast<double>(disparities.size())));
    if (disparities.size() <= 2 * left) return matches->clear();
    const float least = disparities[left], most = disparities[disparities.size() - 1 - left];
    const auto isExtreme = [&](const MeasuredMatch& match) {
        return match.place.disparityPx < least || match.place.disparityPx > most;
    };
    matches->erase(std::remove_if(matches->begin(), matches->end(), isExtreme), matches->end());
}

double turnBetweenRad(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b) {
    return (anglesFromRotation(a) - anglesFromRotation(b)).cwiseAbs().maxCoeff();
}

}  // namespace

void AttemptRecord::setup(const Projection& projection, const Eigen::Matrix3d& storedRotation) {
    projection_ = projection;
    storedRotation_ = storedRotation;
    clear();
}

void AttemptRecord::clear() {
    pairs_.clear();
    lastFit_.reset();
}

void AttemptRecord::addPair(Pair pair) {
    pair.infrared8 = pair.infrared8.clone();
    pair.grey = pair.grey.clone();
    pairs_.push_back({std::move(pair), {}, -1, true});
}

bool AttemptRecord::isStill(const Pair& pair) const {
    const auto stillest = std::min_element(pairs_.begin(), pairs_.end(),
                                           [](const Pair& a, const Pair& b) { return a.motionPx < b.motionPx; });
    return pair.motionPx <= std::max(kStillPx, kStillShare * stillest->motionPx);
}

std::optional<StereoScale> AttemptRecord::workingScale() const {
    if (meter_.scale() != nullptr) return *meter_.scale();
    const bool disparities =
        std::any_of(pairs_.begin(), pairs_.end(), [](const Pair& pair) { return pair.seesDisparities; });
    if (disparities) return meter_.assumedScale();
    return std::nullopt;
}

/// Returns the matches that the rotation explains or nearly explains; the others would only add noise to the fit.
std::vector<MeasuredMatch> AttemptRecord::matchesNear(const Eigen::Matrix3d& rotation, const StereoScale* scale) const {
    std::vector<MeasuredMatch> all;
    for (const Pair& pair : pairs_) {
        if (!isStill(pair)) continue;
        const std::vector<MeasuredMatch> near = matchesOfPairNear(pair, rotation, scale);
        all.insert(all.end(), near.begin(), near.end());
    }
    return all;
}

std::vector<MeasuredMatch> AttemptRecord::matchesOfPairNear(const Pair& pair, const Eigen::Matrix3d& rotation,
                                                            const StereoScale* scale) const {
    std::vector<MeasuredMatch> near = locatedMatches(pair, scale);
    near.erase(std::remove_if(near.begin(), near.end(),
                              [&](const MeasuredMatch& match) {
                                  return projection_.distancePx(match, rotation, scale) > kNearPx;
                              }),
               near.end());
    return near;
}

/// Returns the matches whose distance is known. Where no distance could be measured at all, all matches are returned.
std::vector<MeasuredMatch> AttemptRecord::locatedMatches(const Pair& pair, const StereoScale* scale) {
    std::vector<MeasuredMatch> located;
    for (const MeasuredMatch& match : pair.matches)
        if (!pair.seesDisparities || !std::isnan(inverseDepthOf(match.place, scale))) located.push_back(match);
    return located;
}

std::optional<Eigen::Matrix3d> AttemptRecord::fitMatches(const Eigen::Matrix3d& winner) {
    const auto scale = workingScale();
    const auto matches = balanced(matchesNear(winner, scale ? &*scale : nullptr), projection_.cameras.infrared);
    if (matches.size() < kMinimumMatches) return std::nullopt;
    FitOptions options;
    options.cauchy = kMatchCauchyPx;
    options.scale = scale ? &*scale : nullptr;
    const auto fitted = fitRotation(matches, projection_, winner, options);
    if (!fitted || turnBetweenRad(fitted->rotation, winner) > kMaxDepartureRad) return std::nullopt;
    return fitted->rotation;
}

/// Estimates the scale from the variation of distances within the scene, for attempts in which the depth image does not
/// determine it.
void AttemptRecord::learnScale(const std::vector<MeasuredMatch>& matches, const Eigen::Matrix3d& rotation,
                               double cauchy) {
    const auto scale = workingScale();
    if (!scale || meter_.source() == BaselineSource::Depth) return;
    std::vector<MeasuredMatch> measured;
    std::copy_if(matches.begin(), matches.end(), std::back_inserter(measured),
                 [](const MeasuredMatch& match) { return !std::isnan(match.place.disparityPx); });
    withoutExtremeDisparities(&measured);
    if (measured.size() < kMinimumForScale) return;
    FitOptions options;
    options.cauchy = cauchy;
    options.scale = &*scale;
    options.estimateScale = true;
    const auto fitted = fitRotation(measured, projection_, rotation, options);
    if (!fitted) return;
    const double focalPx = projection_.cameras.infrared.fx;
    const double baselineM = fitted->pixelMetres / focalPx;
    const double deviation =
        std::hypot(fitted->pixelMetresDeviation, scaleScatter(measured, rotation, options)) / fitted->pixelMetres;
    const bool plausible = baselineM > kSmallestBaselineM && baselineM < kLargestBaselineM;
    if (plausible && deviation < kLargestScaleDeviation) meter_.setFittedScale({fitted->pixelMetres, 0, deviation});
}

/// Returns how much the fitted scale depends on single parts of the scene, in pixels times metres (jackknife). Matches
/// are listed still after still, so each of the six groups of consecutive matches stands for a part of the scene.
double AttemptRecord::scaleScatter(const std::vector<MeasuredMatch>& measured, const Eigen::Matrix3d& rotation,
                                   const FitOptions& options) const {
    constexpr std::size_t kParts = 6;
    std::vector<double> scales;
    for (std::size_t part = 0; part < kParts; ++part) {
        std::vector<MeasuredMatch> rest;
        for (std::size_t i = 0; i < measured.size(); ++i)
            if (i * kParts / measured.size() != part) rest.push_back(measured[i]);
        const auto fitted = fitRotation(rest, projection_, rotation, options);
        if (!fitted) return std::numeric_limits<double>::infinity();
        scales.push_back(fitted->pixelMetres);
    }
    double mean = 0, squares = 0;
    for (const double scale : scales)
        mean += scale / kParts;
    for (const double scale : scales)
        squares += (scale - mean) * (scale - mean);
    return std::sqrt(squares * (kParts - 1) / kParts);
}

std::vector<MeasuredMatch> AttemptRecord::alignedPatches(const Eigen::Matrix3d& rotation, const StereoScale* scale) {
    const double pixelMetres = scale != nullptr ? scale->pixelMetres : 0;
    std::vector<MeasuredMatch> all;
    for (KeptPair& pair : pairs_) {
        const bool current = pair.alignedPixelMetres >= 0 &&
                             std::abs(pair.alignedPixelMetres - pixelMetres) <= kScaleChange * pixelMetres;
        if (!current) {
            pair.aligned = alignPatches(pair.infrared8, pair.grey, pair.places, projection_, rotation, scale,
                                        pair.seesDisparities);
            pair.alignedPixelMetres = pixelMetres;
        }
    }
    findPairsThatAgree(rotation, scale);
    for (const KeptPair& pair : pairs_)
        if (pair.agrees && isStill(pair)) all.insert(all.end(), pair.aligned.begin(), pair.aligned.end());
    return all;
}

/// Marks the pairs whose own patches give about the median rotation of all pairs. A pair taken while the device still
/// moved shows the colour camera rotated by the motion between the two exposures.
void AttemptRecord::findPairsThatAgree(const Eigen::Matrix3d& rotation, const StereoScale* scale) {
    FitOptions options;
    options.cauchy = kPatchCauchy;
    options.scale = scale;
    const Eigen::Vector3d startRad = anglesFromRotation(rotation);
    std::vector<Eigen::Vector3d> turns(pairs_.size(), Eigen::Vector3d::Constant(std::nan("")));
    std::array<std::vector<double>, 2> acrossAxes;
    for (std::size_t i = 0; i < pairs_.size(); ++i) {
        if (pairs_[i].aligned.size() < kMinimumPatchesOfPair || !isStill(pairs_[i])) continue;
        const auto fitted = fitRotation(pairs_[i].aligned, projection_, rotation, options);
        if (!fitted) continue;
        turns[i] = anglesFromRotation(fitted->rotation) - startRad;
        for (std::size_t axis = 0; axis < acrossAxes.size(); ++axis)
            acrossAxes[axis].push_back(turns[i][static_cast<Eigen::Index>(axis)]);
    }
    for (KeptPair& pair : pairs_)
        pair.agrees = true;
    if (acrossAxes[0].size() < kMinimumPairsToCompare) return;
    const Eigen::Vector2d middle(medianOf(acrossAxes[0]), medianOf(acrossAxes[1]));
    for (std::size_t i = 0; i < pairs_.size(); ++i) {
        const double departureRad = (turns[i].head<2>() - middle).cwiseAbs().maxCoeff();
        pairs_[i].agrees = !(departureRad > kPairDepartureRad);
    }
}

std::optional<AttemptRecord::LastFit> AttemptRecord::fitAll(const Eigen::Matrix3d& winner) {
    auto start = fitMatches(winner);
    if (!start) return std::nullopt;
    const auto assumed = workingScale();
    learnScale(matchesNear(*start, assumed ? &*assumed : nullptr), *start, kMatchCauchyPx);
    start = fitMatches(winner);
    if (!start) return std::nullopt;

    auto scale = workingScale();
    const std::vector<MeasuredMatch> patches = alignedPatches(*start, scale ? &*scale : nullptr);
    LastFit fit;
    fit.options.cauchy = kPatchCauchy;
    if (patches.size() >= kMinimumPatches) learnScale(patches, *start, kPatchCauchy);
    fit.scale = workingScale();
    fit.options.scale = fit.scale ? &*fit.scale : nullptr;
    auto fitted = fitRotation(patches, projection_, *start, fit.options);
    fit.ofPatches =
        patches.size() >= kMinimumPatches && fitted && turnBetweenRad(fitted->rotation, *start) <= kMaxAlignmentRad;
    if (!fit.ofPatches) {
        fit.options.cauchy = kMatchCauchyPx;
        fitted = fitRotation(balanced(matchesNear(*start, fit.options.scale), projection_.cameras.infrared),
                             projection_, *start, fit.options);
        if (!fitted) return std::nullopt;
    }
    fit.rotation = fitted->rotation;
    return fit;
}

std::optional<PolishedRotation> AttemptRecord::polish(const Eigen::Vector3d& winnerRad) {
    const auto fit = fitAll(rotationFromAngles(winnerRad));
    if (!fit) return std::nullopt;
    lastFit_ = fit;
    lastFit_->options.scale = lastFit_->scale ? &*lastFit_->scale : nullptr;
    return PolishedRotation{anglesFromRotation(lastFit_->rotation), judge(*lastFit_)};
}

std::vector<MeasuredMatch> AttemptRecord::takenOf(const KeptPair& pair, const LastFit& fit) const {
    if (!isStill(pair) || (fit.ofPatches && !pair.agrees)) return {};
    return fit.ofPatches ? pair.aligned : matchesOfPairNear(pair, fit.rotation, fit.options.scale);
}

SolutionQuality AttemptRecord::judge(const LastFit& fit) const {
    JudgedSolution solution{projection_, fit.rotation, storedRotation_, fit.options, {}};
    for (const KeptPair& pair : pairs_)
        solution.stills.push_back({takenOf(pair, fit), locatedMatches(pair, fit.options.scale)});
    return judgeSolution(solution);
}

std::optional<SolutionEvidence> AttemptRecord::evidence() const {
    if (!lastFit_) return std::nullopt;
    SolutionEvidence evidence;
    evidence.projection = projection_;
    evidence.cauchy = lastFit_->options.cauchy;
    int most = 0;
    for (const KeptPair& pair : pairs_) {
        const int index = static_cast<int>(evidence.matchesPerStill.size());
        const std::vector<MeasuredMatch> taken = takenOf(pair, *lastFit_);
        for (const MeasuredMatch& match : taken) {
            const double inverseDepth = inverseDepthOf(match.place, lastFit_->options.scale);
            evidence.matches.push_back({match.place.infrared, match.colour,
                                        std::isnan(inverseDepth) ? 0.0F : static_cast<float>(inverseDepth), index,
                                        match.information});
        }
        const int fitted = static_cast<int>(taken.size());
        evidence.matchesPerStill.push_back(fitted);
        if (fitted <= most) continue;
        most = fitted;
        evidence.shownStill = index;
        evidence.infrared = pair.infrared8;
        evidence.grey = pair.grey;
    }
    return evidence;
}

ParallaxReport AttemptRecord::report() const {
    ParallaxReport report;
    report.baselineM = meter_.baselineM();
    report.baselineFrom = meter_.source();
    std::vector<double> inverseDepths;
    for (const Pair& pair : pairs_) {
        for (const MeasuredMatch& match : pair.matches) {
            const double inverseDepth = inverseDepthOf(match.place, meter_.scale());
            if (!std::isnan(inverseDepth)) inverseDepths.push_back(inverseDepth);
        }
    }
    report.withDistance = static_cast<int>(inverseDepths.size());
    if (inverseDepths.empty()) return report;
    const double median = medianOf(inverseDepths);
    if (median > kFarInverseDepth) report.medianDistanceM = 1 / median;
    return report;
}

}  // namespace vq
