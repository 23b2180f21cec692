#include "engine/RotationPolish.h"

#include "engine/Rotation.h"
#include "engine/RotationCost.h"
#include "engine/RotationFit.h"

#include <Eigen/LU>

#include <algorithm>
#include <array>
#include <cmath>

namespace vq {
namespace {

/// Sharper than the rounds' form: here the start is near and the matches are many.
constexpr double kPolishCauchyPx = 0.6;
constexpr double kMaxDepartureRad = 0.2 / kDegreesPerRadian;
constexpr int kMinimumSupport = 30;
constexpr int kAreaColumns = 4;
constexpr int kAreaRows = 3;
constexpr std::size_t kMostPerArea = 60;

/// Indices of the matches that the winner explains or nearly explains: the others only add noise to the fit.
std::vector<int> nearMatches(const RotationCost& all, const Eigen::Vector3d& winnerRad) {
    std::vector<double> distancesPx;
    all.distancesPx(winnerRad, &distancesPx);
    std::vector<int> near;
    for (std::size_t i = 0; i < distancesPx.size(); ++i) {
        if (distancesPx[i] <= 4.0 * kInlierPx) near.push_back(static_cast<int>(i));
    }
    return near;
}

/// At most so many of the given matches in each area of the infrared picture, spread evenly over what it has: a
/// foreground full of detail must not outvote the rest of the scene.
std::vector<int> balanced(const std::vector<int>& matches, const std::vector<cv::Point2f>& infraredPoints,
                          const fieldcal::CameraModel& infrared) {
    std::array<std::vector<int>, kAreaColumns * kAreaRows> areas;
    const auto areaOf = [](float position, int size, int count) {
        return std::clamp(static_cast<int>(position * static_cast<float>(count) / static_cast<float>(size)), 0,
                          count - 1);
    };
    for (const int match : matches) {
        const cv::Point2f& point = infraredPoints[static_cast<std::size_t>(match)];
        const int row = areaOf(point.y, infrared.height, kAreaRows);
        areas[static_cast<std::size_t>(row * kAreaColumns + areaOf(point.x, infrared.width, kAreaColumns))].push_back(
            match);
    }
    std::vector<int> kept;
    for (const std::vector<int>& area : areas) {
        const std::size_t count = std::min(area.size(), kMostPerArea);
        for (std::size_t i = 0; i < count; ++i)
            kept.push_back(area[i * area.size() / count]);
    }
    return kept;
}

/// Covariance of the angles from the Gauss–Newton matrix of the matches within the inlier bound, scaled by their
/// spread in each picture axis.
Eigen::Vector3d deviations(const RotationCost& cost, const Eigen::Vector3d& anglesRad) {
    std::vector<double> distancesPx;
    cost.distancesPx(anglesRad, &distancesPx);
    std::vector<int> inliers;
    double squares = 0;
    for (std::size_t i = 0; i < distancesPx.size(); ++i) {
        if (distancesPx[i] > kInlierPx) continue;
        inliers.push_back(static_cast<int>(i));
        squares += distancesPx[i] * distancesPx[i];
    }
    if (inliers.size() < 3) return Eigen::Vector3d::Constant(std::nan(""));
    const RotationCost pixels(cost, inliers, ResidualForm::Pixels);
    Eigen::MatrixXd jacobian(pixels.values(), 3);
    pixels.df(anglesRad, jacobian);
    const double variancePx = squares / (2.0 * static_cast<double>(inliers.size()) - 3.0);
    const Eigen::Matrix3d information = jacobian.transpose() * jacobian;
    return (information.inverse().diagonal() * variancePx).cwiseSqrt();
}

}  // namespace

bool polishRotation(const std::vector<cv::Point2f>& infraredPoints, const std::vector<cv::Point2f>& colourPoints,
                    const CameraPair& cameras, const Eigen::Vector3d& winnerRad, PolishedRotation* out) {
    const RotationCost all(infraredPoints, colourPoints, cameras, ResidualForm::Cauchy, kPolishCauchyPx);
    const RotationCost cost(all, balanced(nearMatches(all, winnerRad), infraredPoints, cameras.infrared));
    if (cost.pairs() < kMinimumSupport) return false;
    Eigen::Vector3d polishedRad;
    if (!fitRotationLM(cost, winnerRad, &polishedRad)) return false;
    if ((polishedRad - winnerRad).cwiseAbs().maxCoeff() > kMaxDepartureRad) return false;
    *out = {polishedRad, deviations(cost, polishedRad)};
    return true;
}

}  // namespace vq
