#pragma once

#include "engine/RotationCost.h"

#include <Eigen/Core>

namespace vq {

/// One Levenberg–Marquardt fit of the three angles (Eigen's non-linear optimisation module, after MINPACK's lmder),
/// starting at `initialAnglesRad`. Returns true when it ends with a relative tolerance reached; otherwise `anglesRad`
/// is unchanged. Needs at least two pairs. A start at which every residual is exactly zero counts as a failure.
bool fitRotationLM(const RotationCost& cost, const Eigen::Vector3d& initialAnglesRad, Eigen::Vector3d* anglesRad);

}  // namespace vq
