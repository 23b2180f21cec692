#include "engine/RotationConsensus.h"

#include "engine/RandomIndices.h"
#include "engine/Rotation.h"
#include "engine/RotationFit.h"

#include <Eigen/LU>
#include <Eigen/SVD>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace vq {
namespace {

constexpr float kMinimumDistancePx = 10.0F;
/// A pair within this distance of the winner's prediction does not count as an inlier of a rival.
constexpr double kNearWinnerPx = 6.0;

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
/// A rotation preserves the angle between two directions. Two matches for which it differs by more than twice the
/// inlier bound can therefore never both be inliers, and a sample without four mutually compatible matches is not worth
/// a fit. For all other samples the directions already give the rotation that the fit would find to within a few
/// pixels.
class DirectionPairs {
public:
    explicit DirectionPairs(const RotationCost& cost) : tolerance_(2.0 * kInlierPx / cost.focalLengthPx()) {
        cost.directions(&infrared_, &colour_);
    }

    /// Returns the rotation between the directions of a sample's compatible matches (Kabsch, 1976); none with fewer
    /// than four.
    std::optional<Eigen::Vector3d> anglesOf(const Sample& sample) const {
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
        // At most one match may be left out, and no conflict may remain without it.
        const auto outlier = std::find(conflicts.begin(), conflicts.end(), total);
        if (outlier == conflicts.end()) return std::nullopt;
        Eigen::Matrix3d correlation = Eigen::Matrix3d::Zero();
        for (std::size_t i = 0; i < sample.size(); ++i) {
            if (total > 0 && i == static_cast<std::size_t>(outlier - conflicts.begin())) continue;
            const auto match = static_cast<std::size_t>(sample[i]);
            correlation += colour_[match] * infrared_[match].transpose();
        }
        return anglesFromRotation(nearestRotation(correlation));
    }

private:
    bool areCompatible(int a, int b) const {
        const auto i = static_cast<std::size_t>(a), j = static_cast<std::size_t>(b);
        return std::abs((infrared_[i] - infrared_[j]).norm() - (colour_[i] - colour_[j]).norm()) <= tolerance_;
    }

    static Eigen::Matrix3d nearestRotation(const Eigen::Matrix3d& correlation) {
        const Eigen::JacobiSVD<Eigen::Matrix3d> svd(correlation, Eigen::ComputeFullU | Eigen::ComputeFullV);
        const double sign = (svd.matrixU() * svd.matrixV().transpose()).determinant() < 0 ? -1.0 : 1.0;
        return svd.matrixU() * Eigen::Vector3d(1, 1, sign).asDiagonal() * svd.matrixV().transpose();
    }

    double tolerance_;
    std::vector<Eigen::Vector3d> infrared_, colour_;
};

struct Candidate {
    Eigen::Vector3d anglesRad;
    int inlierCount = 0;
    double error = 0;  ///< as in `Consensus`; infinite when there are too few inliers
};

/// Counts a rotation's inliers among all pairs. The error, which is more expensive, is computed only for at least
/// `soughtInliers` inliers. `distancesPx` is a work buffer.
Candidate judge(const RotationCost& cost, const Eigen::Vector3d& anglesRad, int soughtInliers,
                std::vector<double>* distancesPx) {
    Candidate candidate{anglesRad, 0, std::numeric_limits<double>::infinity()};
    cost.distancesPx(anglesRad, distancesPx);
    candidate.inlierCount = static_cast<int>(
        std::count_if(distancesPx->begin(), distancesPx->end(), [](double distance) { return distance <= kInlierPx; }));
    if (candidate.inlierCount >= soughtInliers) candidate.error = cost.squaredError(anglesRad);
    return candidate;
}

bool isBetter(const Candidate& candidate, const Consensus& best) {
    if (!best.found || candidate.inlierCount > best.inlierCount) return true;
    return candidate.inlierCount == best.inlierCount && candidate.error < best.error;
}

void keep(const RotationCost& cost, const Candidate& winner, Consensus* best) {
    std::vector<double> distancesPx;
    cost.distancesPx(winner.anglesRad, &distancesPx);
    best->found = true;
    best->anglesRad = winner.anglesRad;
    best->inlierCount = winner.inlierCount;
    best->error = winner.error;
    best->inliers.resize(distancesPx.size());
    std::transform(distancesPx.begin(), distancesPx.end(), best->inliers.begin(),
                   [](double distance) { return distance <= kInlierPx; });
}

/// Counts the inliers of each candidate that lie far from the winner's prediction, and returns the largest number.
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
    std::vector<double> distancesPx;
    for (const Sample& sample : samples) {
        if (stop != nullptr && stop->load(std::memory_order_relaxed)) break;
        if (isDegenerate(infraredPoints, sample)) continue;
        const std::optional<Eigen::Vector3d> foreseenRad = directions.anglesOf(sample);
        if (!foreseenRad) continue;
        candidates.push_back(judge(cost, *foreseenRad, best.inlierCount, &distancesPx));
        if (!isBetter(candidates.back(), best)) continue;
        const RotationCost sampleCost(cost, {sample.begin(), sample.end()});
        Eigen::Vector3d fittedRad;
        if (!fitRotationLM(sampleCost, initialAnglesRad, &fittedRad)) continue;
        candidates.back() = judge(cost, fittedRad, best.inlierCount, &distancesPx);
        if (isBetter(candidates.back(), best)) keep(cost, candidates.back(), &best);
    }
    if (best.found) best.rivalInlierCount = strongestRival(cost, candidates, best);
    return best;
}

}  // namespace vq
