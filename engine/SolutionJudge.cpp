#include "engine/SolutionJudge.h"

#include "engine/Median.h"
#include "engine/ResidualBlocks.h"
#include "engine/Rotation.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

namespace vq {
namespace {

/// Error that the stills of an attempt have in common and that their differences therefore cannot show: shade and
/// foliage that look different in infrared and visible light. One standard deviation about each axis, as measured
/// (docs/uncertainty.md).
const Eigen::Vector3d kUnseenDeviationRad = Eigen::Vector3d(0.0025, 0.0025, 0.002) / kDegreesPerRadian;
/// Undetected misalignment of the infrared imagers against each other, in pixels of disparity.
constexpr double kUnknownOffsetPx = 0.03;
/// Unmeasured parallax scatters the matches along the baseline. Its mean, which becomes an error of the rotation, is
/// assumed to be this many times the scatter; its gradient across the image adds a share of that about Z.
constexpr double kMeanOverScatter = 2.5;
constexpr double kShareAboutZ = 0.15;
/// Scatter from which parallax cannot be distinguished: some pixels of the colour model, and a share of the scatter
/// across the baseline.
constexpr double kUnseenScatterPx = 0.025;
constexpr double kUnseenScatterShare = 0.5;
/// Matches further than this from their prediction do not support a rotation.
constexpr double kNearPx = 12.0;
/// Share of a still's verified matches that must lie near the prediction of a correct rotation. Chance produces about a
/// tenth.
constexpr double kMinNearShare = 0.2;

std::vector<MeasuredMatch> matchesNear(const JudgedSolution& solution, const JudgedStill& still,
                                       const Eigen::Matrix3d& rotation) {
    std::vector<MeasuredMatch> near;
    std::copy_if(still.verified.begin(), still.verified.end(), std::back_inserter(near),
                 [&](const MeasuredMatch& match) {
                     return solution.projection.distancePx(match, rotation, solution.options.scale) <= kNearPx;
                 });
    return near;
}

double scatterOf(std::vector<double> values) {
    const double middle = medianOf(values);
    for (double& value : values)
        value = std::abs(value - middle);
    return 1.4826 * medianOf(values);
}

/// The rotation that is indistinguishable from a shift of the whole image along the baseline; `inverseDepth` in 1/m.
Eigen::Vector3d turnOfShiftRad(const Projection& projection, double inverseDepth) {
    const Eigen::Vector3d& t = projection.translationM;
    return Eigen::Vector3d(std::abs(t.y()), std::abs(t.x()), 0.0) * inverseDepth;
}

/// Uncertainty due to the scale of the disparities.
Eigen::Vector3d scaleDeviationRad(const JudgedSolution& solution) {
    const StereoScale* scale = solution.options.scale;
    std::vector<double> inverseDepths;
    for (const JudgedStill& still : solution.stills) {
        for (const MeasuredMatch& match : still.verified) {
            const double inverseDepth = inverseDepthOf(match.place, scale);
            if (!std::isnan(inverseDepth)) inverseDepths.push_back(std::abs(inverseDepth));
        }
    }
    if (scale == nullptr || inverseDepths.empty()) return Eigen::Vector3d::Zero();
    const double ofScale = medianOf(inverseDepths) * scale->relativeDeviation;
    return turnOfShiftRad(solution.projection, std::hypot(ofScale, kUnknownOffsetPx / scale->pixelMetres));
}

/// Uncertainty due to matches without a distance, which count as infinitely far. If they are not far, and not all at
/// the same distance, they scatter more along the baseline than across it.
Eigen::Vector3d unseenParallaxRad(const JudgedSolution& solution) {
    const Projection& projection = solution.projection;
    const Eigen::Vector2d baseline = projection.translationM.head<2>();
    if (baseline.norm() <= 0) return Eigen::Vector3d::Zero();
    const Eigen::Vector2d along = baseline.normalized(), across(-along.y(), along.x());
    std::vector<double> alongPx, acrossPx;
    std::size_t known = 0;
    for (const JudgedStill& still : solution.stills) {
        for (const MeasuredMatch& match : matchesNear(solution, still, solution.rotation)) {
            if (!std::isnan(inverseDepthOf(match.place, solution.options.scale))) {
                ++known;
                continue;
            }
            const Eigen::Vector2d residual = projection.residualPx(solution.rotation, match, solution.options.scale);
            alongPx.push_back(residual.dot(along));
            acrossPx.push_back(residual.dot(across));
        }
    }
    if (alongPx.empty()) return Eigen::Vector3d::Zero();
    // What the depth image does not show is further away, and covers more of the scene than the matches do.
    const double share =
        std::min(2.0 * static_cast<double>(alongPx.size()) / static_cast<double>(alongPx.size() + known), 1.0);
    const double withoutParallax = (1 + kUnseenScatterShare * kUnseenScatterShare) * std::pow(scatterOf(acrossPx), 2);
    const double excess = std::max(std::pow(scatterOf(alongPx), 2) - withoutParallax, 0.0);
    const double shiftPx = share * kMeanOverScatter * std::sqrt(excess + kUnseenScatterPx * kUnseenScatterPx);
    Eigen::Vector3d turnRad = turnOfShiftRad(projection, shiftPx / (projection.cameras.colour.fx * baseline.norm()));
    turnRad.z() = kShareAboutZ * turnRad.norm();
    return turnRad;
}

/// Each still in turn is left out of the fit, and its matches are predicted by the rotation fitted to the others. Some
/// of its verified matches are wrong, so only those near the prediction count; when these are no more than chance
/// produces, all of them count.
std::optional<HoldOutProof> prove(const JudgedSolution& solution) {
    std::vector<double> storedPx, newPx;
    HoldOutProof proof;
    for (const JudgedStill& judged : solution.stills) {
        std::vector<MeasuredMatch> others;
        for (const JudgedStill& still : solution.stills)
            if (&still != &judged) others.insert(others.end(), still.taken.begin(), still.taken.end());
        const auto fitted = fitRotation(others, solution.projection, solution.rotation, solution.options);
        if (!fitted) continue;
        std::vector<MeasuredMatch> matches = matchesNear(solution, judged, fitted->rotation);
        if (static_cast<double>(matches.size()) < kMinNearShare * static_cast<double>(judged.verified.size()))
            matches = judged.verified;
        for (const MeasuredMatch& match : matches) {
            const Projection& projection = solution.projection;
            storedPx.push_back(projection.distancePx(match, solution.storedRotation, solution.options.scale));
            newPx.push_back(projection.distancePx(match, fitted->rotation, solution.options.scale));
        }
        ++proof.stills;
    }
    if (proof.stills < 2 || storedPx.empty()) return std::nullopt;
    proof.matches = static_cast<int>(storedPx.size());
    proof.storedPx = medianOf(storedPx);
    proof.newPx = medianOf(newPx);
    return proof;
}

std::array<double, 3> degrees(const Eigen::Vector3d& rad) {
    return {rad[0] * kDegreesPerRadian, rad[1] * kDegreesPerRadian, rad[2] * kDegreesPerRadian};
}

}  // namespace

bool SolutionQuality::meets(const AccuracyGoal& goal) const {
    return std::equal(samplingDeg.begin(), samplingDeg.end(), goal.deviationDeg.begin(), std::less_equal<>());
}

SolutionQuality judgeSolution(const JudgedSolution& solution) {
    ResidualBlocks blocks(solution.projection, solution.rotation, solution.options);
    for (const JudgedStill& still : solution.stills)
        blocks.addStill(still.taken);
    const Eigen::Vector3d samplingRad =
        (blocks.deviationRad().cwiseAbs2() + kUnseenDeviationRad.cwiseAbs2()).cwiseSqrt();
    const Eigen::Vector3d allRad =
        (samplingRad.cwiseAbs2() + scaleDeviationRad(solution).cwiseAbs2() + unseenParallaxRad(solution).cwiseAbs2())
            .cwiseSqrt();
    SolutionQuality quality;
    quality.samplingDeg = degrees(samplingRad);
    quality.deviationDeg = degrees(allRad);
    quality.model = blocks.checkModel();
    quality.proof = prove(solution);
    return quality;
}

}  // namespace vq
