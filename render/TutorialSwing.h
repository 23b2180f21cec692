#pragma once

#include "camera/Rotation.h"

#include <array>
#include <cmath>

namespace fieldcal {

constexpr float kSwingStepRad = 0.07F;      ///< phase added by one step of the animation
constexpr float kSwingAmplitudeDeg = 1.5F;  ///< about the vertical axis, to both sides

/// Returns the angle of the demonstration at a step, degrees; 0 at step 0.
inline float swingAngleDeg(int step) {
    return kSwingAmplitudeDeg * std::sin(static_cast<float>(step) * kSwingStepRad);
}

/// Returns the same angle as a row-major rotation about Y.
inline std::array<float, 9> swingRotation(int step) {
    const float angleRad = swingAngleDeg(step) * static_cast<float>(kRadiansPerDegree);
    const float c = std::cos(angleRad);
    const float s = std::sin(angleRad);
    return {c, 0, s, 0, 1, 0, -s, 0, c};
}

}  // namespace fieldcal
