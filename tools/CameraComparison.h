#pragma once

#include "camera/CameraParameters.h"
#include "engine/CalibratorInterface.h"

#include <Eigen/Core>

#include <array>
#include <optional>
#include <vector>

namespace fieldcal {

/// A rotation that stills gave under one model of the cameras.
struct StillSolution {
    Eigen::Matrix3d rotation;
    std::optional<vq::SolutionQuality> quality;
    std::vector<vq::EvidenceMatch> matches;  ///< that it was fitted to
    vq::Projection projection;
    vq::ParallaxReport parallax;
    double medianPx = 0;  ///< of the residuals
};

/// Calibrates one colour camera with the stills. None without a good solution that the last fit has given.
std::optional<StillSolution> solveStills(const std::vector<vq::SelectedImages>& stills,
                                         const CameraParameters& parameters, bool platformCamera);

/// By how many deviations the matches of both solutions speak for the first model of the cameras and against the
/// second, where each model has the rotation that fits it best. Quarters of stills are the blocks whose scatter tells
/// the deviation. None where too few blocks have matches.
std::optional<double> deviationsFor(const StillSolution& first, const StillSolution& second);

}  // namespace fieldcal
