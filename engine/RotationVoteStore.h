#pragma once

#include <Eigen/Core>

#include <vector>

namespace vq {

/// Candidate rotations of the rounds, clustered as they come. A cluster is headed by its first candidate.
///
/// Angles are compared as differences from the reference rotation, so that they never wrap. Component 1 is not
/// compared: it is the one that the parallax of near things moves.
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
    /// A candidate below the minimum weight is ignored. One that matches the head of a cluster adds its vote to it;
    /// any other heads a new cluster with one vote.
    void add(const Eigen::Vector3d& anglesRad, float score, float error, int weight);
    /// The record with the most votes, of equals the first; null when there is none.
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
