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

/// The rotation that most pairs of a round agree with.
struct Consensus {
    bool found = false;
    Eigen::Vector3d anglesRad;
    std::vector<char> inliers;  ///< one flag a pair
    int inlierCount = 0;
    double error = 0;  ///< sum of the squared residual terms of all pairs
    /// The most pairs that another candidate explains and the winner does not even come near: how much else the pairs
    /// could mean.
    int rivalInlierCount = 0;
};

/// Random sample consensus (Fischler and Bolles, 1981) over the given samples. Samples with two infrared points closer
/// than 10 pixels are left out, and those of which no rotation can explain four. The directions of the others foretell
/// their rotation; a sample that would win by it is fitted from the initial angles, and judged on all pairs. More
/// inliers win; of equals the smaller error, then the earlier sample. Ends early, with what it has, when `stop` (may be
/// null) is set. Any thread.
Consensus findConsensus(const RotationCost& cost, const std::vector<cv::Point2f>& infraredPoints,
                        const std::vector<Sample>& samples, const Eigen::Vector3d& initialAnglesRad,
                        const std::atomic<bool>* stop = nullptr);

}  // namespace vq
