#pragma once

#include "simulator/synthesis/Exposure.h"

namespace fieldcal::synthesis {

/// Standard deviation of the lenses' blur, pixels.
inline constexpr double kInfraredLensSigmaPx = 0.55, kThirdLensSigmaPx = 0.5, kPlatformLensSigmaPx = 0.8;

/// The exposure settings of one still.
struct StillSettings {
    InfraredSensor infrared;
    ColourSensor colour;
    double darkness = 1;
};

}  // namespace fieldcal::synthesis
