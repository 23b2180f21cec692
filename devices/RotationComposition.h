#pragma once

#include <array>

namespace fieldcal {

using Rotation = std::array<float, 9>;  ///< row-major

/// Whether the nine numbers are finite, orthonormal and of determinant 1, each within `tolerance`.
bool isRotation(const float* matrix, double tolerance);

/// A rotation between rectified frames, from the depth camera to a colour camera, as the camera library takes it:
/// between their raw frames, Mcᵀ · R · Mi. `rectifyColour` (Mc) and `rectifyInfrared` (Mi) take raw to rectified; both
/// must be rotations. 64 bit.
std::array<double, 9> rawRotation(const Rotation& rectified, const float* rectifyColour, const float* rectifyInfrared);

}  // namespace fieldcal
