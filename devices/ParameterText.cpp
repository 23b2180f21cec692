#include "devices/ParameterText.h"

#include "diagnostics/Logger.h"

#include <array>
#include <cmath>

namespace fieldcal {
namespace {

/// The angles about X, Y, Z of R = Rz · Ry · Rx; arc tangents in 32 bit, as everywhere in this system.
std::array<double, 3> anglesDeg(const std::array<float, 9>& r) {
    const float about2 = std::atan2(r[3], r[0]);
    const float c = std::cos(about2);
    const float s = std::sin(about2);
    const float about1 = std::atan2(-r[6], r[0] * c + r[3] * s);
    const float about0 = std::atan2(r[2] * s - r[5] * c, r[4] * c - r[1] * s);
    const auto degrees = [](float radians) { return static_cast<double>(radians) * 180 / 3.141592653589793; };
    return {degrees(about0), degrees(about1), degrees(about2)};
}

}  // namespace

std::string textOf(const CameraModel& model) {
    return formatString("fxfy = [%f %f] cxcy=[%f %f] k1k2k3=[%f %f %f] p1p2=[%f %f]", model.fx, model.fy, model.cx,
                        model.cy, 0.0, 0.0, 0.0, 0.0, 0.0);
}

std::string textOf(const CameraExtrinsics& extrinsics) {
    const auto angles = anglesDeg(extrinsics.rotation);
    const auto& t = extrinsics.translation;
    return formatString("R [% .4f % .4f % .4f] T [% .4f % .4f % .4f]", angles[0], angles[1], angles[2], t[0], t[1],
                        t[2]);
}

}  // namespace fieldcal
