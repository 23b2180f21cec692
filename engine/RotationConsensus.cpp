#include "engine/RotationConsensus.h"

#include "engine/RandomIndices.h"
#include "engine/RotationFit.h"

#include <algorithm>
#include <cmath>

namespace vq {
namespace {

constexpr float kMinimumDistancePx = 10.0F;
/// A pair within this distance of the winner's prediction is not a rival's own.
constexpr double kNearWinnerPx = 4.5;

bool isDegenerate(const std::vector<cv::Point2f>& points, const Sample& sample) {
    for (std::size_t i = 0; i < sample.size(); ++i) {
        for (std::size_t j = i + 1; j < sample.size(); ++j) {
            const cv::Point2f d =
                points[static_cast<std::size_t>(sample[i])] - points[static_cast<std::size_t>(sample[j])];
            if (std::sqrt(d.x * d.x + d.y * d.y) < kMinimumDistancePx) return true;
        }
    }
    return false;
}

/// Unit vectors of a round's matches in both cameras.
///
/// A rotation keeps the distance between two directions. Matches between which it differs by more than two inlier
/// bounds are therefore never inliers together, and a sample without four that go together is not worth its fit. That
/// spares most fits; the refined angles do not depend on it (docs/estimation.md).
class DirectionPairs {
public:
    explicit DirectionPairs(const RotationCost& cost) : tolerance_(2.0 * kInlierPx / cost.focalLengthPx()) {
        cost.directions(&infrared_, &colour_);
    }

    bool hasFourCompatible(const Sample& sample) const {
        std::array<int, kSampleSize> conflicts{};
        int total = 0;
        for (std::size_t i = 0; i < sample.size(); ++i) {
            for (std::size_t j = i + 1; j < sample.size(); ++j) {
                if (areCompatible(sample[i], sample[j])) continue;
                ++conflicts[i];
                ++conflicts[j];
                ++total;
            }
        }
        // Leaving out one match must leave no conflict.
        return std::any_of(conflicts.begin(), conflicts.end(), [total](int own) { return own == total; });
    }

private:
    bool areCompatible(int a, int b) const {
        const auto i = static_cast<std::size_t>(a), j = static_cast<std::size_t>(b);
        return std::abs((infrared_[i] - infrared_[j]).norm() - (colour_[i] - colour_[j]).norm()) <= tolerance_;
    }

    double tolerance_;
    std::vector<Eigen::Vector3d> infrared_, colour_;
};

struct Candidate {
    Eigen::Vector3d anglesRad;
    int inlierCount;
};

/// Judges a rotation on all pairs and keeps it in `best` if it wins.
int judge(const RotationCost& cost, const Eigen::Vector3d& anglesRad, std::vector<double>* residuals, Consensus* best) {
    cost.residuals(anglesRad, residuals);
    int inlierCount = 0;
    double error = 0;
    for (const double residual : *residuals) {
        error += residual * residual;
        if (residual <= kInlierResidual) ++inlierCount;
    }
    const bool wins =
        !best->found || inlierCount > best->inlierCount || (inlierCount == best->inlierCount && error < best->error);
    if (!wins) return inlierCount;
    best->found = true;
    best->anglesRad = anglesRad;
    best->inlierCount = inlierCount;
    best->error = error;
    best->inliers.resize(residuals->size());
    std::transform(residuals->begin(), residuals->end(), best->inliers.begin(),
                   [](double residual) { return residual <= kInlierResidual; });
    return inlierCount;
}

/// Counts pairs that a candidate explains and that lie far from the winner's prediction.
int strongestRival(const RotationCost& cost, const std::vector<Candidate>& candidates, const Consensus& winner) {
    std::vector<double> fromWinnerPx, fromRivalPx;
    cost.distancesPx(winner.anglesRad, &fromWinnerPx);
    int strongest = 0;
    for (const Candidate& candidate : candidates) {
        if (candidate.inlierCount <= strongest) continue;
        cost.distancesPx(candidate.anglesRad, &fromRivalPx);
        int own = 0;
        for (std::size_t i = 0; i < fromRivalPx.size(); ++i) {
            if (fromRivalPx[i] <= kInlierPx && fromWinnerPx[i] > kNearWinnerPx) ++own;
        }
        strongest = std::max(strongest, own);
    }
    return strongest;
}

}  // namespace

std::vector<Sample> drawSamples(int pairs) {
    std::vector<Sample> samples(kSampleCount);
    std::vector<int> indices;
    for (Sample& sample : samples) {
        drawDistinctIndices(kSampleSize, pairs, &indices);
        std::copy(indices.begin(), indices.end(), sample.begin());
    }
    return samples;
}

Consensus findConsensus(const RotationCost& cost, const std::vector<cv::Point2f>& infraredPoints,
                        const std::vector<Sample>& samples, const Eigen::Vector3d& initialAnglesRad,
                        const std::atomic<bool>* stop) {
    Consensus best;
    const DirectionPairs directions(cost);
    std::vector<Candidate> candidates;
    std::vector<double> residuals;
    for (const Sample& sample : samples) {
        if (stop != nullptr && stop->load(std::memory_order_relaxed)) break;
        if (isDegenerate(infraredPoints, sample) || !directions.hasFourCompatible(sample)) continue;
        const RotationCost sampleCost(cost, {sample.begin(), sample.end()});
        Eigen::Vector3d anglesRad;
        if (!fitRotationLM(sampleCost, initialAnglesRad, &anglesRad)) continue;
        candidates.push_back({anglesRad, judge(cost, anglesRad, &residuals, &best)});
    }
    if (best.found) best.rivalInlierCount = strongestRival(cost, candidates, best);
    return best;
}

}  // namespace vq
