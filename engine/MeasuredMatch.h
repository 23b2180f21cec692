#pragma once

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <cmath>
#include <limits>
#include <vector>

namespace vq {

/// Distances as inverse depths along the optical axis of the depth camera, 1/m: about zero for what is far away.
constexpr float kUnknownDistance = std::numeric_limits<float>::quiet_NaN();

/// A place of the left infrared image whose distance was looked for. Pixels; NaN where nothing was found.
struct MeasuredPlace {
    cv::Point2f infrared;
    float disparityPx = kUnknownDistance;   ///< between the two infrared images
    float inverseDepth = kUnknownDistance;  ///< 1/m, read from the depth image
};

/// A correspondence as the last fit uses it.
struct MeasuredMatch {
    MeasuredPlace place;
    cv::Point2f colour;  ///< pixels of the colour model
    /// Inverse covariance of the colour point, 1/px²: what the image around it tells about its position.
    Eigen::Matrix2d information = Eigen::Matrix2d::Identity();
};

}  // namespace vq
