#pragma once

#include "engine/DistanceMeter.h"
#include "engine/ParallaxReport.h"
#include "engine/RotationPolish.h"
#include "engine/SolutionEvidence.h"
#include "engine/SolutionQuality.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <optional>
#include <vector>

namespace vq {

/// A rotation fitted to everything that an attempt has seen.
struct PolishedRotation {
    Eigen::Vector3d anglesRad;
    SolutionQuality quality;
};

/// What an attempt keeps of its pairs, and the last fit over all of it.
///
/// The rounds of the vote see 84 matches at a time. Started at their winner, the last fit first takes the verified
/// matches at their exact positions with each one's own distance, then aligns patches of the images directly, wherever
/// both have texture (docs/estimation.md, docs/distances.md). One thread at a time; uses a second one while it works.
class AttemptRecord {
public:
    /// One pair: its two 8-bit images, its verified matches, and the textured places that may be aligned.
    struct Pair {
        cv::Mat infrared8, grey;
        std::vector<MeasuredMatch> matches;
        std::vector<MeasuredPlace> places;
        bool seesDisparities = false;  ///< whether a match without a distance is an exception
        float motionPx = 0;            ///< how far the infrared image moved to the next frame
    };

    explicit AttemptRecord(DistanceMeter& meter) : meter_(meter) {}

    /// `storedRotation`: what the attempt starts from, depth to colour.
    void setup(const Projection& projection, const Eigen::Matrix3d& storedRotation);
    void clear();

    /// The images are copied.
    void addPair(Pair pair);

    /// The last fit. None when it fails, when too few matches support it, or when it leaves the winner by more than
    /// the rounds scatter; the winner then stands.
    std::optional<PolishedRotation> polish(const Eigen::Vector3d& winnerRad);

    ParallaxReport report() const;
    /// What the last fit was made from; none before there was one.
    std::optional<SolutionEvidence> evidence() const;

private:
    struct KeptPair : Pair {
        std::vector<MeasuredMatch> aligned;
        double alignedPixelMetres = -1;  ///< the scale they were aligned with; negative before
        bool agrees = true;              ///< with the rotation that the pairs want in the median
    };
    /// What the angles were fitted to last, and how.
    struct LastFit {
        Eigen::Matrix3d rotation;
        FitOptions options;  ///< its scale is `scale`
        std::optional<StereoScale> scale;
        bool ofPatches = false;
    };

    /// Whether the hand was still, as far as that can be had: a pair of a moving hand counts when there is no other.
    bool isStill(const Pair& pair) const;
    /// The scale that distances are computed with: a known one, else an assumed one where disparities are seen.
    std::optional<StereoScale> workingScale() const;
    std::vector<MeasuredMatch> matchesNear(const Eigen::Matrix3d& rotation, const StereoScale* scale) const;
    std::vector<MeasuredMatch> matchesOfPairNear(const Pair& pair, const Eigen::Matrix3d& rotation,
                                                 const StereoScale* scale) const;
    static std::vector<MeasuredMatch> locatedMatches(const Pair& pair, const StereoScale* scale);
    std::optional<Eigen::Matrix3d> fitMatches(const Eigen::Matrix3d& winner);
    void learnScale(const std::vector<MeasuredMatch>& matches, const Eigen::Matrix3d& rotation, double cauchy);
    double scaleScatter(const std::vector<MeasuredMatch>& measured, const Eigen::Matrix3d& rotation,
                        const FitOptions& options) const;
    std::vector<MeasuredMatch> alignedPatches(const Eigen::Matrix3d& rotation, const StereoScale* scale);
    void findPairsThatAgree(const Eigen::Matrix3d& rotation, const StereoScale* scale);
    std::optional<LastFit> fitAll(const Eigen::Matrix3d& winner);
    /// What a fit takes of one pair; empty when the pair does not take part.
    std::vector<MeasuredMatch> takenOf(const KeptPair& pair, const LastFit& fit) const;
    SolutionQuality judge(const LastFit& fit) const;

    DistanceMeter& meter_;
    Projection projection_;
    Eigen::Matrix3d storedRotation_ = Eigen::Matrix3d::Identity();
    std::vector<KeptPair> pairs_;
    std::optional<LastFit> lastFit_;
};

}  // namespace vq
