#include "engine/RotationEstimator.h"

#include "engine/Rotation.h"
#include "engine/RotationFit.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <future>
#include <limits>

namespace vq {
namespace {

constexpr int kRounds = 10;
constexpr int kMinimumWeight = 1;
constexpr double kToleranceDeg = 0.1;

// A consensus is accepted when it has more inliers than chance produces. Rounds over images of different scenes never
// reach a share of 0.1; rounds over one scene lie between 0.4 and 0.9.
constexpr double kMinimumInlierShare = 0.2;
constexpr int kMinimumInliers = 12;
/// The scene is ambiguous when a second rotation explains this share of the winner's inliers.
constexpr double kRivalShare = 0.25;

Eigen::Vector3d unsetAngles() {
    return Eigen::Vector3d::Constant(std::numeric_limits<double>::quiet_NaN());
}

/// Evaluates how well a rotation explains the pairs. The score is 1 minus the mean residual, which varies little from
/// round to round.
void judgeFit(const RotationCost& cost, const Eigen::Vector3d& anglesRad, float* score, float* error, int* inliers) {
    std::vector<double> residuals;
    cost.residuals(anglesRad, &residuals);
    double sum = 0, squares = 0;
    *inliers = 0;
    for (const double residual : residuals) {
        sum += residual;
        squares += residual * residual;
        if (residual <= kInlierResidual) ++*inliers;
    }
    const auto count = static_cast<double>(residuals.size());
    *score = static_cast<float>(1.0 - sum / count);
    *error = static_cast<float>(std::sqrt(squares / count));
}

/// Outside the searched range the matcher finds only those matches whose search areas happen to include them, and a
/// consensus of such matches is biased towards the range. Up to half a degree outside, the result is still correct.
constexpr double kBeyondSearchDeg = 0.5;

bool lieWithin(const SearchRange& range, const Eigen::Vector3d& offsetDeg) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double offset = offsetDeg[static_cast<Eigen::Index>(axis)];
        if (offset < range.minDeg[axis] - kBeyondSearchDeg || offset > range.maxDeg[axis] + kBeyondSearchDeg) {
            return false;
        }
    }
    return true;
}

bool isMoreThanChance(int inliers, int pairs) {
    return inliers >= kMinimumInliers && inliers >= kMinimumInlierShare * pairs;
}

}  // namespace

/// The pairs and samples that one round draws from the grid, and the candidate that it estimates from them.
struct RotationEstimator::Round {
    std::vector<cv::Point2f> infraredPoints, colourPoints;
    std::vector<Sample> samples;
    Eigen::Vector3d anglesRad = unsetAngles();
    float score = -1.0F;
    float error = -1.0F;
    int weight = 0;
};

RotationEstimator::RotationEstimator() : votes_(kMinimumWeight, Eigen::Vector3d::Constant(kToleranceDeg)) {}

void RotationEstimator::setup(const RotationSearch& search) {
    search_ = search;
    votes_.setReference(search.initialAnglesRad.cast<double>());
}

void RotationEstimator::forgetResults() {
    votes_.clear();
    hasLastBest_ = false;
}

bool RotationEstimator::estimateRotationByVoting(const MatchGrid& grid, int supportCount, Eigen::Vector3d* anglesRad) {
    forgetResults();
    // All random numbers are drawn first, in the order of the rounds, so that the rounds can then run in parallel.
    std::vector<Round> rounds(kRounds);
    drawRounds(grid, supportCount, &rounds);
    const auto estimateFrom = [&](std::size_t first) {
        for (std::size_t i = first; i < rounds.size(); i += 2)
            estimateRound(&rounds[i]);
    };
    auto odd = std::async(std::launch::async, estimateFrom, 1);
    estimateFrom(0);
    odd.get();
    *anglesRad = unsetAngles();
    if (stopped()) return false;
    for (const Round& round : rounds)
        votes_.add(round.anglesRad, round.score, round.error, round.weight);

    const RotationVoteStore::Record* best = votes_.best();
    hasLastBest_ = best != nullptr;
    if (hasLastBest_) lastBest_ = *best;
    votes_.clear();
    if (!hasLastBest_) return false;
    *anglesRad = lastBest_.anglesRad;
    return lastBest_.votes >= supportCount;
}

void RotationEstimator::drawRounds(const MatchGrid& grid, int perCell, std::vector<Round>* rounds) const {
    for (Round& round : *rounds) {
        grid.sample(perCell, &round.infraredPoints, &round.colourPoints);
        const int pairs = static_cast<int>(round.infraredPoints.size());
        if (pairs >= kSampleSize) {
            round.samples = drawSamples(pairs);
        } else {
            std::fputs("[choose] Error: k > n\n", stderr);
        }
    }
}

void RotationEstimator::estimateRound(Round* round) const {
    if (round->samples.empty()) return;
    const RotationCost cost(round->infraredPoints, round->colourPoints, search_.cameras);
    const Consensus consensus =
        findConsensus(cost, round->infraredPoints, round->samples, search_.initialAnglesRad.cast<double>(), stop_);
    if (refineRotation(cost, consensus, &round->anglesRad, &round->score, &round->error)) {
        round->weight = cost.pairs();
    }
}

bool RotationEstimator::refineRotation(const RotationCost& cost, const Consensus& consensus, Eigen::Vector3d* anglesRad,
                                       float* score, float* error) const {
    if (!consensus.found || !isMoreThanChance(consensus.inlierCount, cost.pairs())) return false;
    if (consensus.rivalInlierCount > kRivalShare * consensus.inlierCount) return false;
    Eigen::Vector3d refinedRad;
    if (!fitRotationLM(cost, search_.initialAnglesRad.cast<double>(), &refinedRad)) return false;
    const Eigen::Vector3d offsetRad = refinedRad - search_.initialAnglesRad.cast<double>();
    if (!lieWithin(search_.range, offsetRad * kDegreesPerRadian)) return false;
    int inliers = 0;
    judgeFit(cost, refinedRad, score, error, &inliers);
    // The fit over all pairs starts far away and must converge to the rotation of the consensus.
    if (2 * inliers < consensus.inlierCount || !isMoreThanChance(inliers, cost.pairs())) return false;
    if (refinementOutput_ == RefinementOutput::OfConsensus) {
        judgeFit(cost, consensus.anglesRad, score, error, &inliers);
    }
    *anglesRad = refinedRad;
    return true;
}

}  // namespace vq
