#pragma once

#include "camera/CameraParameters.h"
#include "engine/CalibratorInterface.h"

#include <Eigen/Core>

#include <optional>
#include <vector>

namespace fieldcal {

/// The rotation estimated from stills under one model of the cameras.
struct StillSolution {
    Eigen::Matrix3d rotation;
    std::optional<vq::SolutionQuality> quality;
    std::vector<vq::EvidenceMatch> matches;  ///< the matches to which the rotation was fitted
    vq::Projection projection;
    double cauchy = 0;  ///< scale of the Cauchy loss
    vq::ParallaxReport parallax;
    double medianPx = 0;  ///< median of the residuals
};

/// Calibrates one colour camera with the stills. Returns none without a good solution from the final fit.
std::optional<StillSolution> solveStills(const std::vector<vq::SelectedImages>& stills,
                                         const CameraParameters& parameters, bool platformCamera);

/// The position between two camera models that fits the matches best: 0 is the first model, 1 the second.
struct Preference {
    double share = 0;
    double deviation = 0;  ///< standard deviation of `share`
};

/// Estimates the share together with the rotation. `matches`: of solutions under either model; `first`: the solution
/// under the first model. The deviation is estimated by leaving out one still, or one quarter of a still, at a time
/// (jackknife); the larger of the two estimates is used. Returns none when too few of these parts have matches or the
/// estimate does not converge.
std::optional<Preference> preferenceBetween(const std::vector<vq::EvidenceMatch>& matches, const StillSolution& first,
                                            const vq::Projection& other);

}  // namespace fieldcal
