#pragma once

#include "engine/CameraPair.h"
#include "engine/MeasuredMatch.h"
#include "engine/StereoScale.h"

#include <Eigen/Core>

#include <optional>
#include <vector>

namespace vq {

/// Projects infrared places of known distance into the colour image. Positions are pixels of the infrared and of the
/// colour model. `translationM`: depth to colour, in the colour camera's frame.
struct Projection {
    CameraPair cameras;
    Eigen::Vector3d translationM = Eigen::Vector3d::Zero();

    /// Returns K_colour · (R · K_infrared⁻¹ · p + t / depth), divided by its third coordinate.
    Eigen::Vector2d colourPoint(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                double inverseDepth) const;
    /// The residual of a match under a rotation, in pixels of the colour model. A match of unknown distance counts as
    /// infinitely far.
    Eigen::Vector2d residualPx(const Eigen::Matrix3d& rotation, const MeasuredMatch& match,
                               const StereoScale* scale) const;
    double distancePx(const MeasuredMatch& match, const Eigen::Matrix3d& rotation, const StereoScale* scale) const {
        return residualPx(rotation, match, scale).norm();
    }
    /// Returns the infrared place at which an object at infinity would appear, if the colour camera saw it where it
    /// sees this one: the place with its parallax removed.
    cv::Point2f withoutParallax(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                double inverseDepth) const;
};

/// Inverse depth of a place, 1/m: from its disparity where there is a scale, otherwise from the depth image. NaN when
/// it is unknown.
double inverseDepthOf(const MeasuredPlace& place, const StereoScale* scale);

/// Options of `fitRotation`.
struct FitOptions {
    double cauchy = 0.3;         ///< scale of the Cauchy loss, in standard deviations of a match
    bool estimateScale = false;  ///< also estimate the scale of the disparities, starting from `scale`
    const StereoScale* scale = nullptr;
};

struct FittedRotation {
    Eigen::Matrix3d rotation;
    Eigen::Vector3d deviationRad;  ///< one standard deviation about each axis, from the spread of the residuals
    double pixelMetres = 0;        ///< with `estimateScale` only
    double pixelMetresDeviation = 0;
};

/// Robust fit of the rotation with the exact projection of each match at its distance: iteratively reweighted
/// Gauss-Newton on the Cauchy loss. Matches of unknown distance count as infinitely far. Returns none when the fit does
/// not converge. Any thread.
std::optional<FittedRotation> fitRotation(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                                          const Eigen::Matrix3d& start, const FitOptions& options);

}  // namespace vq
