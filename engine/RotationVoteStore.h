#pragma once

#include <Eigen/Core>

#include <vector>

namespace vq {

/// Clusters the candidate rotations of the rounds in the order in which they arrive. The first candidate of a cluster
/// represents it.
///
/// Angles are compared as differences from the reference rotation, so that they never wrap. Component 1 is not
/// compared, because the parallax of near objects changes it.
class RotationVoteStore {
public:
    struct Record {
        Eigen::Vector3d anglesRad;
        float score;
        float error;
        int weight;
        int votes;
    };

    RotationVoteStore(int minimumWeight, const Eigen::Vector3d& tolerancesDeg);

    void setReference(const Eigen::Vector3d& anglesRad) { referenceRad_ = anglesRad; }
    /// Ignores a candidate below the minimum weight. A candidate that matches the representative of a cluster adds a
    /// vote to it; any other starts a new cluster with one vote.
    void add(const Eigen::Vector3d& anglesRad, float score, float error, int weight);
    /// The record with the most votes, on a tie the first one; null when there is none.
    const Record* best() const;
    void clear() { records_.clear(); }

private:
    bool matches(const Record& record, const Eigen::Vector3d& anglesRad, float score) const;

    const int minimumWeight_;
    const Eigen::Vector3d tolerancesRad_;
    Eigen::Vector3d referenceRad_ = Eigen::Vector3d::Zero();
    std::vector<Record> records_;
};

}  // namespace vq
