#pragma once

#include "camera/Rotation.h"

#include <opencv2/core.hpp>

#include <array>
#include <cmath>

namespace fieldcal::synthesis {

/// Rz(a2) · Ry(a1) · Rx(a0), see docs/conventions.md.
inline cv::Matx33d rotationFromAngles(const std::array<double, 3>& anglesDeg) {
    std::array<double, 3> c{}, s{};
    for (int i = 0; i < 3; ++i) {
        c[i] = std::cos(anglesDeg[i] * kRadiansPerDegree);
        s[i] = std::sin(anglesDeg[i] * kRadiansPerDegree);
    }
    const cv::Matx33d x(1, 0, 0, 0, c[0], -s[0], 0, s[0], c[0]);
    const cv::Matx33d y(c[1], 0, s[1], 0, 1, 0, -s[1], 0, c[1]);
    const cv::Matx33d z(c[2], -s[2], 0, s[2], c[2], 0, 0, 0, 1);
    return z * y * x;
}

inline std::array<double, 9> rowMajor(const cv::Matx33d& m) {
    std::array<double, 9> out{};
    for (int i = 0; i < 9; ++i)
        out[i] = m.val[i];
    return out;
}

}  // namespace fieldcal::synthesis
