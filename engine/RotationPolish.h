#pragma once

#include "engine/CameraPair.h"
#include "engine/MeasuredMatch.h"
#include "engine/StereoScale.h"

#include <Eigen/Core>

#include <optional>
#include <vector>

namespace vq {

/// Where an infrared place at a known distance appears in the colour image. Pixels of the infrared and of the colour
/// model; `translationM`: depth to colour, in the colour camera's frame.
struct Projection {
    CameraPair cameras;
    Eigen::Vector3d translationM = Eigen::Vector3d::Zero();

    /// K_colour · (R · K_infrared⁻¹ · p + t / depth), divided by its third coordinate.
    Eigen::Vector2d colourPoint(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                double inverseDepth) const;
    /// Between where a rotation puts a match and where it is, pixels of the colour model. Counts as infinitely far what
    /// has no distance.
    Eigen::Vector2d residualPx(const Eigen::Matrix3d& rotation, const MeasuredMatch& match,
                               const StereoScale* scale) const;
    double distancePx(const MeasuredMatch& match, const Eigen::Matrix3d& rotation, const StereoScale* scale) const {
        return residualPx(rotation, match, scale).norm();
    }
    /// The infrared place at which something at infinity would be seen where the colour camera sees this: the place
    /// freed of its parallax.
    cv::Point2f withoutParallax(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                double inverseDepth) const;
};

/// Inverse depth of a place, 1/m: from its disparity where there is a scale, else from the depth image. NaN: unknown.
double inverseDepthOf(const MeasuredPlace& place, const StereoScale* scale);

/// How matches are fitted.
struct FitOptions {
    double cauchy = 0.3;         ///< where the Cauchy loss bends, in deviations of a match
    bool estimateScale = false;  ///< also the disparities' scale, from its value in `scale`
    const StereoScale* scale = nullptr;
};

struct FittedRotation {
    Eigen::Matrix3d rotation;
    Eigen::Vector3d deviationRad;  ///< one standard deviation about each axis, from the residuals' spread
    double pixelMetres = 0;        ///< with `estimateScale`
    double pixelMetresDeviation = 0;
};

/// Robust fit of the rotation, with the exact geometry of each match's distance: iteratively reweighted Gauss-Newton
/// on the Cauchy loss. Matches of unknown distance count as infinitely far. None when it does not converge. Any thread.
std::optional<FittedRotation> fitRotation(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                                          const Eigen::Matrix3d& start, const FitOptions& options);

}  // namespace vq
