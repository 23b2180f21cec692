#pragma once

#include "engine/CameraPair.h"
#include "engine/ResidualLoss.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Differences between colour points and infrared points mapped by K_colour · R · K_infrared⁻¹, as residuals of a
/// rotation given by three angles in radians.
class RotationCost {
public:
    /// Colour points are in pixels of the colour model.
    RotationCost(const std::vector<cv::Point2f>& infraredPoints, const std::vector<cv::Point2f>& colourPoints,
                 const CameraPair& cameras, const ResidualLoss& loss = ResidualLoss::cauchy());
    /// Selects pairs of another cost by index.
    RotationCost(const RotationCost& all, const std::vector<int>& indices);

    int pairs() const { return static_cast<int>(rays_.size()); }

    /// The two components of each pair's residual, one pair after the other.
    void terms(const Eigen::Vector3d& anglesRad, Eigen::VectorXd* out) const;
    /// The residual of each pair: the length of its two components.
    void residuals(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const;
    /// The sum of the squared residuals of all pairs.
    double squaredError(const Eigen::Vector3d& anglesRad) const;
    /// Unit vectors of each pair's points, each in its own camera's axes.
    void directions(std::vector<Eigen::Vector3d>* infrared, std::vector<Eigen::Vector3d>* colour) const;
    double focalLengthPx() const { return fx_; }
    /// The distance of each pair's colour point from its prediction, in pixels of the colour model.
    void distancesPx(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const;

private:
    template <typename Visit>
    void visitDifferences(const Eigen::Vector3d& anglesRad, Visit&& visit) const;

    std::vector<Eigen::Vector2d> rays_;     ///< infrared points on the plane Z = 1
    std::vector<Eigen::Vector2d> colours_;  ///< matched colour points
    double fx_, fy_, cx_, cy_;
    ResidualLoss loss_;
};

}  // namespace vq
