#pragma once

#include <array>
#include <cstdint>

namespace fieldcal {

/// The range of depths that the colours cover; what lies outside has the nearest end's colour.
constexpr double kNearestColouredMetres = 1;
constexpr double kFarthestColouredMetres = 10;

/// RGBA, alpha 255. From light yellow (near) through red and magenta to dark blue (far), with steps that look equal for
/// equal ratios of depth. Any thread.
std::array<std::uint8_t, 4> depthColour(std::uint16_t millimetres);

}  // namespace fieldcal
