#include "engine/StereoScale.h"

#include <Eigen/LU>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vq {
namespace {

constexpr std::size_t kMinimumPlaces = 40;
constexpr double kLargestRelativeDeviation = 0.02;
constexpr int kIterations = 20;
/// Scale of the Cauchy loss, pixels of disparity.
constexpr double kCauchyPx = 0.25;
/// Neighbouring windows and depths are correlated: this number of places counts as one independent measurement.
constexpr double kPlacesPerIndependentOne = 10;
/// The offset is used when the depths vary enough to determine it, and when its value is possible for real imagers.
constexpr double kLargestOffsetDeviationPx = 0.03;
constexpr double kLargestOffsetPx = 1.0;
/// Depths near the end of the depth image's range are biased towards smaller values, because noise beyond the end is
/// cut off. Only depths within this share of the farthest one count.
constexpr double kReachShare = 0.93;

/// Pairs of inverse depth and disparity of the places that have both.
std::vector<Eigen::Vector2d> samplesWithinReach(const std::vector<MeasuredPlace>& places) {
    float farthest = std::numeric_limits<float>::max();
    for (const MeasuredPlace& place : places) {
        if (!std::isnan(place.inverseDepth)) farthest = std::min(farthest, place.inverseDepth);
    }
    std::vector<Eigen::Vector2d> samples;
    for (const MeasuredPlace& place : places) {
        if (!std::isnan(place.disparityPx) && place.inverseDepth * kReachShare >= farthest)
            samples.emplace_back(place.inverseDepth, place.disparityPx);
    }
    return samples;
}

struct Line {
    Eigen::Vector2d solution;  ///< pixels times metres, offset
    Eigen::Vector2d deviation;
};

/// Robust line through the samples. It starts at the median of disparity times depth, which is insensitive to any share
/// of wrong samples below one half.
Line fitLine(const std::vector<Eigen::Vector2d>& samples, bool withOffset) {
    std::vector<double> products;
    products.reserve(samples.size());
    for (const Eigen::Vector2d& sample : samples)
        products.push_back(sample[1] / sample[0]);
    const auto middle = products.begin() + static_cast<std::ptrdiff_t>(products.size() / 2);
    std::nth_element(products.begin(), middle, products.end());
    Line line{{*middle, 0}, {0, 0}};
    for (int i = 0; i < kIterations; ++i) {
        Eigen::Matrix2d normal = Eigen::Matrix2d::Zero();
        Eigen::Vector2d right = Eigen::Vector2d::Zero();
        double squares = 0, weights = 0;
        for (const Eigen::Vector2d& sample : samples) {
            const Eigen::Vector2d row(sample[0], withOffset ? 1 : 0);
            const double residual = sample[1] - row.dot(line.solution);
            const double weight = 1 / (1 + residual * residual / (kCauchyPx * kCauchyPx));
            normal += weight * row * row.transpose();
            right += weight * sample[1] * row;
            squares += weight * residual * residual;
            weights += weight;
        }
        if (!withOffset) normal(1, 1) = 1;
        const Eigen::Matrix2d covariance = normal.inverse() * (kPlacesPerIndependentOne * squares / weights);
        line = {normal.inverse() * right, covariance.diagonal().cwiseSqrt()};
    }
    return line;
}

}  // namespace

std::optional<StereoScale> scaleFromDepth(const std::vector<MeasuredPlace>& places) {
    const std::vector<Eigen::Vector2d> samples = samplesWithinReach(places);
    if (samples.size() < kMinimumPlaces) return std::nullopt;
    Line line = fitLine(samples, true);
    const bool offsetIsSeen =
        line.deviation[1] < kLargestOffsetDeviationPx && std::abs(line.solution[1]) < kLargestOffsetPx;
    if (!offsetIsSeen) line = fitLine(samples, false);
    const double relativeDeviation = line.deviation[0] / line.solution[0];
    if (!(line.solution[0] > 0 && relativeDeviation <= kLargestRelativeDeviation)) return std::nullopt;
    return StereoScale{line.solution[0], offsetIsSeen ? line.solution[1] : 0, relativeDeviation};
}

}  // namespace vq
