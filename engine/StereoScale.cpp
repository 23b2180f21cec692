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
/// Where the Cauchy loss bends, pixels of disparity.
constexpr double kCauchyPx = 0.25;
/// What is expected of imagers before anything was measured, pixels of disparity. It counts as much as that many places:
/// neighbouring windows and depths are not independent, so the places themselves count for less than their number.
constexpr double kExpectedOffsetPx = 0.1;
constexpr double kPlacesPerIndependentOne = 10;
/// Depths near the end of the depth image's reach are drawn towards it, since what noise takes beyond is missing: only
/// depths within this share of the farthest one count.
constexpr double kReachShare = 0.93;

/// Inverse depth and disparity of the places that have both.
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

}  // namespace

std::optional<StereoScale> scaleFromDepth(const std::vector<MeasuredPlace>& places) {
    const std::vector<Eigen::Vector2d> samples = samplesWithinReach(places);
    if (samples.size() < kMinimumPlaces) return std::nullopt;
    // Started at the median of disparity times depth, which no share of wrong samples below a half can move far.
    std::vector<double> products;
    for (const Eigen::Vector2d& sample : samples)
        products.push_back(sample[1] / sample[0]);
    const auto middle = products.begin() + static_cast<std::ptrdiff_t>(products.size() / 2);
    std::nth_element(products.begin(), middle, products.end());
    Eigen::Vector2d solution(*middle, 0);
    Eigen::Matrix2d normal;
    double variance = kCauchyPx * kCauchyPx;
    for (int i = 0; i < kIterations; ++i) {
        normal << 0, 0, 0, kPlacesPerIndependentOne * variance / (kExpectedOffsetPx * kExpectedOffsetPx);
        Eigen::Vector2d right = Eigen::Vector2d::Zero();
        double squares = 0, weights = 0;
        for (const Eigen::Vector2d& sample : samples) {
            const Eigen::Vector2d row(sample[0], 1);
            const double residual = sample[1] - row.dot(solution);
            const double weight = 1 / (1 + residual * residual / (kCauchyPx * kCauchyPx));
            normal += weight * row * row.transpose();
            right += weight * sample[1] * row;
            squares += weight * residual * residual;
            weights += weight;
        }
        solution = normal.inverse() * right;
        variance = squares / weights;
    }
    if (!(solution[0] > 0)) return std::nullopt;
    StereoScale scale{solution[0], solution[1], 0};
    scale.relativeDeviation =
        std::sqrt(kPlacesPerIndependentOne * variance * normal.inverse()(0, 0)) / scale.pixelMetres;
    if (!(scale.relativeDeviation <= kLargestRelativeDeviation)) return std::nullopt;
    return scale;
}

}  // namespace vq
