#pragma once

#include <array>

namespace fieldcal {

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegreesPerRadian = 180 / kPi;
constexpr double kRadiansPerDegree = kPi / 180;

using Matrix3 = std::array<double, 9>;  ///< row-major
using Rotation = std::array<float, 9>;  ///< a rotation as the records keep it, row-major
using Angles3 = std::array<double, 3>;  ///< about X, Y and Z

/// Converts the nine numbers at `matrix` to double precision.
Matrix3 widened(const float* matrix);

Matrix3 product(const Matrix3& a, const Matrix3& b);
Matrix3 transposed(const Matrix3& matrix);

/// Returns the largest entry of |MᵀM − I|, 0 for an orthonormal matrix.
double departureFromOrthonormal(const Matrix3& matrix);

/// Returns whether the matrix is finite, orthonormal and of determinant 1, each within `tolerance`.
bool isRotation(const Matrix3& matrix, double tolerance);

/// Returns Rz(a2) · Ry(a1) · Rx(a0), see docs/conventions.md.
Matrix3 rotationFromAngles(const Angles3& anglesRad);

/// The inverse of `rotationFromAngles`, radians. The arc tangents are evaluated in single precision and therefore exact
/// to about 1e-7.
Angles3 anglesFromRotation(const Matrix3& rotation);

/// Returns the angle of the rotation a · bᵀ in degrees, from 0 to 180.
double angleBetweenDeg(const Matrix3& a, const Matrix3& b);

}  // namespace fieldcal
