#include "engine/Rotation.h"

#include <cmath>

namespace vq {

Eigen::Matrix3d rotationFromAngles(const Eigen::Vector3d& anglesRad) {
    const double c0 = std::cos(anglesRad[0]), s0 = std::sin(anglesRad[0]);
    const double c1 = std::cos(anglesRad[1]), s1 = std::sin(anglesRad[1]);
    const double c2 = std::cos(anglesRad[2]), s2 = std::sin(anglesRad[2]);
    Eigen::Matrix3d rotation;
    rotation << c2 * c1, c2 * s1 * s0 - s2 * c0, c2 * s1 * c0 + s2 * s0,  //
        s2 * c1, s2 * s1 * s0 + c2 * c0, s2 * s1 * c0 - c2 * s0,          //
        -s1, c1 * s0, c1 * c0;
    return rotation;
}

Eigen::Vector3d anglesFromRotation(const Eigen::Matrix3d& rotation) {
    const auto atan2f = [](double y, double x) { return std::atan2(static_cast<float>(y), static_cast<float>(x)); };
    const double a2 = atan2f(rotation(1, 0), rotation(0, 0));
    const double c = std::cos(a2), s = std::sin(a2);
    const double a1 = atan2f(-rotation(2, 0), rotation(0, 0) * c + rotation(1, 0) * s);
    const double a0 = atan2f(rotation(0, 2) * s - rotation(1, 2) * c, rotation(1, 1) * c - rotation(0, 1) * s);
    return {a0, a1, a2};
}

}  // namespace vq
