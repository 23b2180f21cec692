#pragma once

#include "engine/RotationPolish.h"
#include "engine/SolutionQuality.h"

#include <Eigen/Core>

#include <vector>

namespace vq {

/// What one still gave to a fit.
struct JudgedStill {
    std::vector<MeasuredMatch> taken;     ///< what was fitted; empty when the still was left out
    std::vector<MeasuredMatch> verified;  ///< all its verified matches that may count, the wrong ones among them
};

/// A fitted rotation and what it was fitted to.
struct JudgedSolution {
    Projection projection;
    Eigen::Matrix3d rotation;        ///< depth to colour
    Eigen::Matrix3d storedRotation;  ///< what it is to replace
    FitOptions options;
    std::vector<JudgedStill> stills;
};

/// How good a solution is (docs/uncertainty.md): its deviation, the proof on stills that took no part, and whether a
/// rotation explains the matches. A few milliseconds. Any thread.
SolutionQuality judgeSolution(const JudgedSolution& solution);

}  // namespace vq
