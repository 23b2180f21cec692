#include "workflow/LightGate.h"

#include <algorithm>

namespace fieldcal {

LightGate::Reading LightGate::detect(std::uint16_t brightness) {
    const double limit = threshold();
    wellLit_ = brightness > limit;
    if (wellLit_) return {true, 1.0};
    return {false, std::clamp((brightness - 8.0) / limit, 0.0, 1.0)};
}

}  // namespace fieldcal
