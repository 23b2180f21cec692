#include "tools/CameraComparison.h"

#include "engine/Median.h"
#include "engine/Rotation.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace fieldcal {
namespace {

constexpr double kCauchyPx = 0.3;
constexpr double kOutlierPx = 6.0;
constexpr std::size_t kLeastBlocks = 6;
constexpr std::size_t kLeastMatches = 100;

vq::MeasuredMatch measured(const vq::EvidenceMatch& match) {
    vq::MeasuredMatch out;
    out.place.infrared = match.infrared;
    out.place.inverseDepth = match.inverseDepth;
    out.colour = match.colour;
    return out;
}

double costOf(double residualPx) {
    return std::log1p(residualPx * residualPx / (kCauchyPx * kCauchyPx));
}

std::optional<Eigen::Matrix3d> fitted(const std::vector<vq::EvidenceMatch>& matches, const StillSolution& model) {
    std::vector<vq::MeasuredMatch> all;
    all.reserve(matches.size());
    std::transform(matches.begin(), matches.end(), std::back_inserter(all), measured);
    vq::FitOptions options;
    options.cauchy = kCauchyPx;
    const auto fit = vq::fitRotation(all, model.projection, model.rotation, options);
    if (!fit) return std::nullopt;
    return fit->rotation;
}

/// The still and the quarter of the infrared image.
std::pair<int, int> blockOf(const vq::EvidenceMatch& match, const CameraModel& infrared) {
    const int right = 2 * match.infrared.x >= static_cast<float>(infrared.width) ? 1 : 0;
    const int lower = 2 * match.infrared.y >= static_cast<float>(infrared.height) ? 2 : 0;
    return {match.still, right + lower};
}

}  // namespace

std::optional<StillSolution> solveStills(const std::vector<vq::SelectedImages>& stills,
                                         const CameraParameters& parameters, bool platformCamera) {
    vq::RegistrationContext context;
    vq::CalibratorInterface cameras(context, parameters);
    cameras.setCameraParameters(platformCamera);
    vq::SensorCalibrator calibrator(context, {});
    calibrator.setup();
    for (const vq::SelectedImages& still : stills) {
        if (!calibrator.prepare(still)) continue;
        calibrator.generateMatches();
        if (calibrator.hasEnoughFilledCells()) calibrator.tryDetermineStableSolution();
    }
    const auto evidence = calibrator.evidence();
    if (!calibrator.goodSolution() || !evidence) return std::nullopt;
    StillSolution solution;
    const auto deg = context.state->values();
    solution.rotation =
        vq::rotationFromAngles(Eigen::Vector3d(deg[0], deg[1], deg[2]) / kDegreesPerRadian);
    solution.quality = calibrator.quality();
    solution.matches = evidence->matches;
    solution.projection = evidence->projection;
    solution.parallax = calibrator.parallax();
    std::vector<double> residuals;
    for (const vq::EvidenceMatch& match : solution.matches)
        residuals.push_back(evidence->residualPx(match, solution.rotation).norm());
    if (residuals.size() < kLeastMatches) return std::nullopt;
    solution.medianPx = vq::medianOf(residuals);
    return solution;
}

std::optional<double> deviationsFor(const StillSolution& first, const StillSolution& second) {
    std::vector<vq::EvidenceMatch> matches = first.matches;
    matches.insert(matches.end(), second.matches.begin(), second.matches.end());
    const auto firstRotation = fitted(matches, first), secondRotation = fitted(matches, second);
    if (!firstRotation || !secondRotation) return std::nullopt;
    std::map<std::pair<int, int>, double> blocks;
    for (const vq::EvidenceMatch& match : matches) {
        const double a = first.projection.residualPx(*firstRotation, measured(match), nullptr).norm();
        const double b = second.projection.residualPx(*secondRotation, measured(match), nullptr).norm();
        if (std::min(a, b) > kOutlierPx) continue;
        blocks[blockOf(match, first.projection.cameras.infrared)] += costOf(b) - costOf(a);
    }
    if (blocks.size() < kLeastBlocks) return std::nullopt;
    const double count = static_cast<double>(blocks.size());
    double sum = 0, squares = 0;
    for (const auto& [block, difference] : blocks) {
        sum += difference;
        squares += difference * difference;
    }
    const double variance = count / (count - 1) * (squares - sum * sum / count);
    return variance > 0 ? sum / std::sqrt(variance) : 0;
}

}  // namespace fieldcal
