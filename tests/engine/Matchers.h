#pragma once

#include "engine/Rotation.h"

#include <Eigen/Geometry>
#include <gmock/gmock.h>

namespace vq::testing {

constexpr double kDeg = 1.0 / kDegreesPerRadian;

inline double angleBetween(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b) {
    const Eigen::Matrix3d difference = a * b.transpose();
    // Via the skew part: exact for small angles, where the trace has lost its digits.
    const Eigen::Vector3d skew(difference(2, 1) - difference(1, 2), difference(0, 2) - difference(2, 0),
                               difference(1, 0) - difference(0, 1));
    return std::atan2(skew.norm(), difference.trace() - 1.0);
}

MATCHER_P(IsRotation, tolerance, "is orthonormal with determinant 1") {
    return ((arg * arg.transpose() - Eigen::Matrix3d::Identity()).cwiseAbs().maxCoeff() <= tolerance) &&
           std::abs(arg.determinant() - 1.0) <= tolerance;
}

MATCHER_P2(NearRotation, truth, toleranceRad, "is near the rotation") {
    const double error = angleBetween(arg, truth);
    *result_listener << "which is " << error * kDegreesPerRadian << " degrees away";
    return error <= toleranceRad;
}

/// Angles in radians against a rotation given by three angles in radians.
MATCHER_P2(NearAngles, truthRad, toleranceRad, "are the angles of a near rotation") {
    const double error = angleBetween(rotationFromAngles(arg), rotationFromAngles(truthRad));
    *result_listener << "which is " << error * kDegreesPerRadian << " degrees away";
    return error <= toleranceRad;
}

MATCHER_P2(NearPoint, point, tolerancePx, "is near the point") {
    return std::abs(arg.x - point.x) <= tolerancePx && std::abs(arg.y - point.y) <= tolerancePx;
}

}  // namespace vq::testing
