#pragma once

#include "engine/CameraPair.h"
#include "engine/MatchGrid.h"
#include "engine/RotationConsensus.h"
#include "engine/RotationVoteStore.h"
#include "engine/SearchRange.h"

#include <Eigen/Core>

#include <atomic>
#include <vector>

namespace vq {

/// The configuration of the rotation search, fixed when an attempt is set up.
struct RotationSearch {
    CameraPair cameras;
    Eigen::Vector3f initialAnglesRad = Eigen::Vector3f::Zero();  ///< starting point of every fit: the factory rotation
    SearchRange range;                                           ///< the range that the matcher searched
    float stepDeg = 0.15F;
    int workingCount = 30;
};

/// Which score and error a refinement returns.
enum class RefinementOutput {
    OfFit,        ///< of the refined rotation
    OfConsensus,  ///< of the consensus that it refines
};

/// Estimates three angles from the correspondences of an attempt: each of ten rounds draws a fresh subset from the grid
/// and estimates one candidate robustly; candidates that agree vote for each other. With the same seed of `rand()`, the
/// result is the same. Call it from one thread at a time; it uses a second thread internally.
class RotationEstimator {
public:
    RotationEstimator();

    void setup(const RotationSearch& search);
    /// When the flag becomes true, the estimation ends early without a solution. May be null.
    void setStopFlag(const std::atomic<bool>* stop) { stop_ = stop; }
    bool stopped() const { return stop_ != nullptr && *stop_; }

    /// Returns true when the best cluster has at least `supportCount` votes. `anglesRad` receives its angles, NaN
    /// without a cluster.
    bool estimateRotationByVoting(const MatchGrid& grid, int supportCount, Eigen::Vector3d* anglesRad);

    /// The winner of the last finished vote, valid until the next vote begins. Null without one.
    const RotationVoteStore::Record* lastBest() const { return hasLastBest_ ? &lastBest_ : nullptr; }
    void forgetResults();

private:
    struct Round;

    void drawRounds(const MatchGrid& grid, int perCell, std::vector<Round>* rounds) const;
    void estimateRound(Round* round) const;
    bool refineRotation(const RotationCost& cost, const Consensus& consensus, Eigen::Vector3d* anglesRad, float* score,
                        float* error) const;

    RotationSearch search_;
    RefinementOutput refinementOutput_ = RefinementOutput::OfFit;
    RotationVoteStore votes_;
    RotationVoteStore::Record lastBest_{};
    bool hasLastBest_ = false;
    const std::atomic<bool>* stop_ = nullptr;
};

}  // namespace vq
