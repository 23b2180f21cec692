#pragma once

#include "camera/Rotation.h"

#include <Eigen/Core>

namespace vq {

using fieldcal::kDegreesPerRadian;

// `camera/Rotation.h` with the matrix types of Eigen.

/// The matrix with these rows.
Eigen::Matrix3d matrixOf(const fieldcal::Matrix3& rows);
Eigen::Matrix3d matrixOf(const fieldcal::Rotation& rows);

/// Returns R = Rz(a2) · Ry(a1) · Rx(a0), radians.
Eigen::Matrix3d rotationFromAngles(const Eigen::Vector3d& anglesRad);

/// The inverse of `rotationFromAngles`, radians. The arc tangents are evaluated in single precision and therefore exact
/// to about 1e-7.
Eigen::Vector3d anglesFromRotation(const Eigen::Matrix3d& rotation);

/// Returns the angle of the rotation a · bᵀ in degrees, from 0 to 180.
double angleBetweenDeg(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b);

}  // namespace vq
