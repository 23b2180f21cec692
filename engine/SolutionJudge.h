#pragma once

#include "engine/RotationPolish.h"
#include "engine/SolutionQuality.h"

#include <Eigen/Core>

#include <vector>

namespace vq {

/// The matches that one still contributed to a fit.
struct JudgedStill {
    std::vector<MeasuredMatch> taken;     ///< the fitted matches; empty when the still was left out
    std::vector<MeasuredMatch> verified;  ///< all its verified matches that may count, wrong ones included
};

/// A fitted rotation with the matches to which it was fitted.
struct JudgedSolution {
    Projection projection;
    Eigen::Matrix3d rotation;        ///< depth to colour
    Eigen::Matrix3d storedRotation;  ///< the rotation that it is to replace
    FitOptions options;
    std::vector<JudgedStill> stills;
};

/// Evaluates the quality of a solution (docs/uncertainty.md): its deviation, the hold-out proof on stills that took no
/// part in the fit, and whether a rotation alone explains the matches. Takes a few milliseconds. Any thread.
SolutionQuality judgeSolution(const JudgedSolution& solution);

}  // namespace vq
