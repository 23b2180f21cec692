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

/// How the rotation is searched; fixed when an attempt is set up.
struct RotationSearch {
    CameraPair cameras;
    Eigen::Vector3f initialAnglesRad = Eigen::Vector3f::Zero();  ///< starting point of every fit: the factory rotation
    SearchRange range;                                           ///< what the matcher was allowed to find
    float stepDeg = 0.15F;
    int workingCount = 30;
};

/// Which score and error a refinement hands out.
enum class RefinementOutput {
    OfFit,        ///< of the refined rotation
    OfConsensus,  ///< of the consensus that it refines
};

/// Three angles from the correspondences of an attempt: ten rounds, each drawing a fresh subset of the grid and
/// estimating one candidate robustly; candidates that agree vote for each other.
/// One thread at a time; uses a second one while it works. With `rand()` seeded alike, the result is the same.
class RotationEstimator {
public:
    RotationEstimator();

    void setup(const RotationSearch& search);
    /// When the flag becomes true the estimation ends early, without a solution. May be null.
    void setStopFlag(const std::atomic<bool>* stop) { stop_ = stop; }
    bool stopped() const { return stop_ != nullptr && *stop_; }

    /// True when the best cluster has at least `supportCount` votes. `anglesRad` are its angles, NaN without one.
    bool estimateRotationByVoting(const MatchGrid& grid, int supportCount, Eigen::Vector3d* anglesRad);

    /// The winner of the last finished vote, until the next begins. Null without one.
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
