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

/// A rotation fitted to all image pairs of an attempt.
struct PolishedRotation {
    Eigen::Vector3d anglesRad;
    SolutionQuality quality;
};

/// Keeps the image pairs of an attempt and computes the final fit over all of them.
/// Each round of the vote uses 84 matches at most. The final fit starts from the winner of the vote. It first uses all
/// verified matches at their exact positions, each with its own distance, and then aligns image patches directly
/// wherever both images have texture (docs/estimation.md, docs/distances.md). Call it from one thread at a time; it
/// uses a second thread internally.
class AttemptRecord {
public:
    /// One image pair: its two 8-bit images, its verified matches, and the textured places at which patches may be
    /// aligned.
    struct Pair {
        cv::Mat infrared8, grey;
        std::vector<MeasuredMatch> matches;
        std::vector<MeasuredPlace> places;
        bool seesDisparities = false;  ///< whether the distances of most matches can be measured
        float motionPx = 0;            ///< motion of the infrared image to the next frame
    };

    explicit AttemptRecord(DistanceMeter& meter) : meter_(meter) {}

    /// `storedRotation`: depth to colour, the rotation with which the attempt starts.
    void setup(const Projection& projection, const Eigen::Matrix3d& storedRotation);
    void clear();

    /// Adds a pair. The images are copied.
    void addPair(Pair pair);

    /// Computes the final fit. Returns none, so that the winner of the vote stands, when the fit fails, when too few
    /// matches support it, or when it differs from the winner by more than the rounds scatter.
    std::optional<PolishedRotation> polish(const Eigen::Vector3d& winnerRad);

    ParallaxReport report() const;
    /// The matches and images behind the final fit; none before a fit has succeeded.
    std::optional<SolutionEvidence> evidence() const;

private:
    struct KeptPair : Pair {
        std::vector<MeasuredMatch> aligned;
        double alignedPixelMetres = -1;  ///< the scale used for the alignment; negative before the first alignment
        bool agrees = true;              ///< whether the pair's own rotation agrees with the median over the pairs
    };
    /// The state of the final fit: its rotation, its options and what it was fitted to.
    struct LastFit {
        Eigen::Matrix3d rotation;
        FitOptions options;  ///< `options.scale` points to `scale`
        std::optional<StereoScale> scale;
        bool ofPatches = false;
    };

    /// Returns whether the device was still enough for the pair to take part. When no pair was still, the stillest ones
    /// count.
    bool isStill(const Pair& pair) const;
    /// The scale used to compute distances: a measured one, otherwise an assumed one if disparities are available.
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
    /// The matches of one pair that a fit uses; empty when the pair does not take part.
    std::vector<MeasuredMatch> takenOf(const KeptPair& pair, const LastFit& fit) const;
    SolutionQuality judge(const LastFit& fit) const;

    DistanceMeter& meter_;
    Projection projection_;
    Eigen::Matrix3d storedRotation_ = Eigen::Matrix3d::Identity();
    std::vector<KeptPair> pairs_;
    std::optional<LastFit> lastFit_;
};

}  // namespace vq
