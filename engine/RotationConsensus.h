#pragma once

#include "engine/RotationCost.h"

#include <Eigen/Core>

#include <array>
#include <atomic>
#include <vector>

namespace vq {

constexpr int kSampleSize = 5;
constexpr int kSampleCount = 401;

using Sample = std::array<int, kSampleSize>;

/// Draws the samples of one consensus: distinct indices below `pairs`, which must be at least `kSampleSize`.
std::vector<Sample> drawSamples(int pairs);

/// The rotation with the most inliers among the pairs of a round.
struct Consensus {
    bool found = false;
    Eigen::Vector3d anglesRad;
    std::vector<char> inliers;  ///< one flag per pair
    int inlierCount = 0;
    double error = 0;  ///< sum of the squared residuals of all pairs
    /// The largest number of inliers of another candidate that lie far from the winner's prediction. It measures how
    /// ambiguous the pairs are.
    int rivalInlierCount = 0;
};

/// Random sample consensus (Fischler and Bolles, 1981) over the given samples. A sample is skipped when two of its
/// infrared points are closer than 10 pixels, or when no rotation can explain four of its pairs. For the others, the
/// directions of the points give an approximate rotation; only a sample whose approximate rotation would win is fitted,
/// starting from the initial angles, and evaluated on all pairs. The candidate with the most inliers wins; on a tie the
/// smaller error decides, then the order of the samples. When `stop` (may be null) becomes true, the search ends early
/// with the best candidate so far. Any thread.
Consensus findConsensus(const RotationCost& cost, const std::vector<cv::Point2f>& infraredPoints,
                        const std::vector<Sample>& samples, const Eigen::Vector3d& initialAnglesRad,
                        const std::atomic<bool>* stop = nullptr);

}  // namespace vq
