#pragma once

#include "engine/RotationPolish.h"

namespace vq {

/// How far a program that uses the module misses the colour of a surface: the median, over the infrared image, of the
/// pixels between where the surface's own depth and the estimated rotation put it in the colour image, and where the
/// colour camera sees it. `ownInverseDepth` is what the module takes for the surface's inverse depth (1/m),
/// `trueInverseDepth` what it is; they differ for a module whose imagers are misaligned.
double registrationErrorPx(const Projection& projection, const Eigen::Matrix3d& estimated, const Eigen::Matrix3d& truth,
                           double ownInverseDepth, double trueInverseDepth);

}  // namespace vq
