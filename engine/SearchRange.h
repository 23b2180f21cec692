#pragma once

#include <array>

namespace vq {

/// The range of the rotation search, in degrees relative to the current angles.
struct SearchRange {
    std::array<double, 3> minDeg{-4.0, -1.5, -2.0};
    std::array<double, 3> maxDeg{4.0, 1.5, 2.0};
};

}  // namespace vq
