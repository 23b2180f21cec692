#pragma once

#include "engine/RotationPolish.h"

namespace vq {

/// The registration error of a program that maps depth onto colour with the estimated rotation: the median over the
/// infrared image, in pixels, of the distance between the colour position computed from the surface's measured depth
/// and the position at which the colour camera sees the surface. `ownInverseDepth` is the inverse depth that the module
/// measures for the surface (1/m), `trueInverseDepth` the actual one; they differ for a module whose imagers are
/// misaligned.
double registrationErrorPx(const Projection& projection, const Eigen::Matrix3d& estimated, const Eigen::Matrix3d& truth,
                           double ownInverseDepth, double trueInverseDepth);

}  // namespace vq
