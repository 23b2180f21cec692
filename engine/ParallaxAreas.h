#pragma once

#include "engine/RotationPolish.h"

#include <opencv2/core.hpp>

namespace vq {

/// Range of the parallax shift of a place in the colour image, relative to its position at infinity. Pixels.
struct ParallaxShift {
    cv::Point2f low{0, 0}, high{0, 0};
};

/// The shifts between two inverse depths (1/m).
ParallaxShift shiftBetween(const Projection& projection, const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                           double smallestInverseDepth, double largestInverseDepth);

/// The possible shifts of a place. They follow from its coarse disparity or from the depth image. When disparities are
/// available but this place has none, the range covers everything from 1.2 m to infinity. Without any knowledge of
/// distances the shift is zero.
ParallaxShift possibleShift(const Projection& projection, const Eigen::Matrix3d& rotation, const MeasuredPlace& place,
                            const StereoScale* scale, bool seesDisparities);

}  // namespace vq
