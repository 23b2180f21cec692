#include "engine/RotationPolish.h"

#include "engine/Rotation.h"
#include "engine/RotationCost.h"
#include "engine/RotationFit.h"

#include <Eigen/LU>

#include <cmath>

namespace vq {
namespace {

/// Sharper than the rounds' form: here the start is near and the matches are many.
constexpr double kPolishCauchyPx = 0.6;
constexpr double kMaxDepartureRad = 0.2 / kDegreesPerRadian;
constexpr int kMinimumSupport = 30;

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
    const RotationCost cost(all, nearMatches(all, winnerRad));
    if (cost.pairs() < kMinimumSupport) return false;
    Eigen::Vector3d polishedRad;
    if (!fitRotationLM(cost, winnerRad, &polishedRad)) return false;
    if ((polishedRad - winnerRad).cwiseAbs().maxCoeff() > kMaxDepartureRad) return false;
    *out = {polishedRad, deviations(cost, polishedRad)};
    return true;
}

}  // namespace vq
