#pragma once

#include <array>
#include <cstdint>

namespace fieldcal {

/// The range of depths that the colours cover; depths outside it have the colour of the nearer end.
constexpr double kNearestColouredMetres = 1;
constexpr double kFarthestColouredMetres = 10;

/// Returns the colour of a depth as RGBA, alpha 255: from light yellow (near) through red and magenta to dark blue
/// (far), with perceptually equal steps for equal ratios of depth. Any thread.
std::array<std::uint8_t, 4> depthColour(std::uint16_t millimetres);

}  // namespace fieldcal
