#include "engine/RotationVoteStore.h"

#include "engine/Rotation.h"

#include <algorithm>
#include <cmath>

namespace vq {
namespace {

constexpr float kScoreTolerance = 0.02F;
constexpr double kFullTurnRad = 2.0 * fieldcal::kPi;

double offsetFrom(double referenceRad, double angleRad) {
    return std::remainder(angleRad - referenceRad, kFullTurnRad);
}

}  // namespace

RotationVoteStore::RotationVoteStore(int minimumWeight, const Eigen::Vector3d& tolerancesDeg)
    : minimumWeight_(minimumWeight), tolerancesRad_(tolerancesDeg / kDegreesPerRadian) {}

bool RotationVoteStore::matches(const Record& record, const Eigen::Vector3d& anglesRad, float score) const {
    for (const Eigen::Index axis : {0, 2}) {
        const double difference =
            offsetFrom(referenceRad_[axis], anglesRad[axis]) - offsetFrom(referenceRad_[axis], record.anglesRad[axis]);
        if (!(std::abs(difference) <= tolerancesRad_[axis])) return false;
    }
    return std::abs(score - record.score) <= (score + record.score) * kScoreTolerance * 0.5F;
}

void RotationVoteStore::add(const Eigen::Vector3d& anglesRad, float score, float error, int weight) {
    if (weight < minimumWeight_) return;
    const auto head = std::find_if(records_.begin(), records_.end(),
                                   [&](const Record& record) { return matches(record, anglesRad, score); });
    if (head != records_.end()) {
        ++head->votes;
    } else {
        records_.push_back({anglesRad, score, error, weight, 1});
    }
}

const RotationVoteStore::Record* RotationVoteStore::best() const {
    const auto most = std::max_element(records_.begin(), records_.end(),
                                       [](const Record& a, const Record& b) { return a.votes < b.votes; });
    return most != records_.end() ? &*most : nullptr;
}

}  // namespace vq
