#pragma once

#include "engine/RotationPolish.h"

#include <opencv2/core.hpp>

namespace vq {

/// How far parallax can move a place in the colour image beyond where it would appear at infinity. Pixels.
struct ParallaxShift {
    cv::Point2f low{0, 0}, high{0, 0};
};

/// The shifts between two inverse depths (1/m).
ParallaxShift shiftBetween(const Projection& projection, const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                           double smallestInverseDepth, double largestInverseDepth);

/// The shifts that a place can have, for what is known of its distance: by its coarse disparity, by the depth image, or
/// anything from infinity to 1.2 m where disparities are seen and this place has none. Nothing at all known: none.
ParallaxShift possibleShift(const Projection& projection, const Eigen::Matrix3d& rotation, const MeasuredPlace& place,
                            const StereoScale* scale, bool seesDisparities);

}  // namespace vq
