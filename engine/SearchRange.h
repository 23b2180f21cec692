#pragma once

#include <array>

namespace vq {

/// How far, in degrees about the current angles, the rotation is searched.
struct SearchRange {
    std::array<double, 3> minDeg{-4.0, -1.5, -2.0};
    std::array<double, 3> maxDeg{4.0, 1.5, 2.0};
};

}  // namespace vq
