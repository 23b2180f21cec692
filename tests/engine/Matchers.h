#pragma once

#include "engine/Rotation.h"

#include <Eigen/Geometry>
#include <gmock/gmock.h>

namespace vq::testing {

constexpr double kDeg = 1.0 / kDegreesPerRadian;

MATCHER_P(IsRotation, tolerance, "is orthonormal with determinant 1") {
    return arg.isUnitary(tolerance) && std::abs(arg.determinant() - 1.0) <= tolerance;
}

MATCHER_P2(NearRotation, truth, toleranceRad, "is near the rotation") {
    const double errorRad = Eigen::AngleAxisd(arg * truth.transpose()).angle();
    *result_listener << "which is " << errorRad / kDeg << " degrees away";
    return errorRad <= toleranceRad;
}

/// Compares three angles in radians.
MATCHER_P2(NearAngles, truthRad, toleranceRad, "are the angles of a near rotation") {
    const Eigen::Matrix3d truth = rotationFromAngles(truthRad);
    return ExplainMatchResult(NearRotation(truth, toleranceRad), rotationFromAngles(arg), result_listener);
}

}  // namespace vq::testing
