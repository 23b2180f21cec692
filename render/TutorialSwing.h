#pragma once

#include <array>

namespace fieldcal {

constexpr float kSwingStepRad = 0.07F;      ///< phase added by one step of the animation
constexpr float kSwingAmplitudeDeg = 1.5F;  ///< about the vertical axis, to both sides

/// Returns the angle of the demonstration at a step, degrees; 0 at step 0.
float swingAngleDeg(int step);
/// Returns the same angle as a row-major rotation about Y.
std::array<float, 9> swingRotation(int step);

}  // namespace fieldcal
