#include "engine/ParallaxAreas.h"

#include <algorithm>
#include <cmath>

namespace vq {
namespace {

constexpr double kNearestInverseDepth = 1 / 1.2;
constexpr double kCoarsePx = 2.0;  ///< largest error of a coarse disparity
constexpr double kDepthShare = 0.1;

}  // namespace

ParallaxShift shiftBetween(const Projection& projection, const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                           double smallestInverseDepth, double largestInverseDepth) {
    const Eigen::Vector2d atInfinity = projection.colourPoint(rotation, infrared, 0);
    const Eigen::Vector2d a = projection.colourPoint(rotation, infrared, smallestInverseDepth) - atInfinity;
    const Eigen::Vector2d b = projection.colourPoint(rotation, infrared, largestInverseDepth) - atInfinity;
    const Eigen::Vector2f low = a.cwiseMin(b).cast<float>(), high = a.cwiseMax(b).cast<float>();
    return {{low.x(), low.y()}, {high.x(), high.y()}};
}

ParallaxShift possibleShift(const Projection& projection, const Eigen::Matrix3d& rotation, const MeasuredPlace& place,
                            const StereoScale* scale, bool seesDisparities) {
    const auto between = [&](double smallest, double largest) {
        return shiftBetween(projection, rotation, place.infrared, std::clamp(smallest, 0.0, kNearestInverseDepth),
                            std::clamp(largest, 0.0, kNearestInverseDepth));
    };
    if (scale != nullptr && !std::isnan(place.disparityPx)) {
        const double share = 2 * scale->relativeDeviation;
        return between(scale->inverseDepth(place.disparityPx - kCoarsePx) * (1 - share),
                       scale->inverseDepth(place.disparityPx + kCoarsePx) * (1 + share));
    }
    if (!std::isnan(place.inverseDepth))
        return between(place.inverseDepth * (1 - kDepthShare), place.inverseDepth * (1 + kDepthShare));
    return seesDisparities ? between(0, kNearestInverseDepth) : ParallaxShift{};
}

}  // namespace vq
