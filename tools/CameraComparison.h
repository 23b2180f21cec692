#pragma once

#include "camera/CameraParameters.h"
#include "engine/CalibratorInterface.h"

#include <Eigen/Core>

#include <optional>
#include <vector>

namespace fieldcal {

/// A rotation that stills gave under one model of the cameras.
struct StillSolution {
    Eigen::Matrix3d rotation;
    std::optional<vq::SolutionQuality> quality;
    std::vector<vq::EvidenceMatch> matches;  ///< that it was fitted to
    vq::Projection projection;
    double cauchy = 0;  ///< where the loss of the fit bends
    vq::ParallaxReport parallax;
    double medianPx = 0;  ///< of the residuals
};

/// Calibrates one colour camera with the stills. None without a good solution that the last fit has given.
std::optional<StillSolution> solveStills(const std::vector<vq::SelectedImages>& stills,
                                         const CameraParameters& parameters, bool platformCamera);

/// How far matches want a model of the cameras to be moved towards another one: 0 for the first one, 1 for the second.
struct Preference {
    double share = 0;
    double deviation = 0;  ///< of the share
};

/// Estimates that share together with the rotation. `matches`: of solutions under either model. Its deviation is told
/// by leaving out one still, or one quarter of a still, after the other; whichever scatters more. None where too few of
/// them have matches or the estimate does not converge.
std::optional<Preference> preferenceBetween(const std::vector<vq::EvidenceMatch>& matches, const StillSolution& told,
                                            const vq::Projection& other);

}  // namespace fieldcal
