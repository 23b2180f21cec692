#include "render/TutorialSwing.h"

#include <cmath>

namespace fieldcal {

float swingAngleDeg(int step) {
    return kSwingAmplitudeDeg * std::sin(static_cast<float>(step) * kSwingStepRad);
}

std::array<float, 9> swingRotation(int step) {
    const float angleRad = swingAngleDeg(step) * 0.017453292F;
    const float c = std::cos(angleRad);
    const float s = std::sin(angleRad);
    return {c, 0, s, 0, 1, 0, -s, 0, c};
}

}  // namespace fieldcal
