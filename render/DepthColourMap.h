#pragma once

#include "render/DepthRange.h"

#include <array>
#include <cstdint>

namespace fieldcal {

/// The colours of the depths of a range as RGBA, alpha 255: from light yellow (near) through red and magenta to dark
/// blue (far), with perceptually equal steps for equal ratios of depth. Depths outside of the range have the colour of
/// the nearer end. Any thread.
class DepthColours {
public:
    explicit DepthColours(const DepthRange& range = {});
    std::array<std::uint8_t, 4> operator()(std::uint16_t millimetres) const;

private:
    float nearest_;       ///< logarithm
    float stepsPerUnit_;  ///< of the logarithm
};

}  // namespace fieldcal
