#pragma once

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <cmath>
#include <limits>
#include <vector>

namespace vq {

/// Marks a place whose distance is unknown. Distances are inverse depths along the optical axis of the depth camera,
/// 1/m, about zero for far objects.
constexpr float kUnknownDistance = std::numeric_limits<float>::quiet_NaN();

/// A place in the left infrared image whose distance was measured. Pixels; NaN where the measurement failed.
struct MeasuredPlace {
    cv::Point2f infrared;
    float disparityPx = kUnknownDistance;   ///< between the two infrared images
    float inverseDepth = kUnknownDistance;  ///< 1/m, read from the depth image
};

/// A correspondence as the final fit uses it.
struct MeasuredMatch {
    MeasuredPlace place;
    cv::Point2f colour;  ///< pixels of the colour model
    /// Inverse covariance of the colour point in 1/px², from the texture around it.
    Eigen::Matrix2d information = Eigen::Matrix2d::Identity();
};

}  // namespace vq
