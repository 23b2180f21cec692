#include "devices/ParameterText.h"

#include "camera/Rotation.h"
#include "diagnostics/Logger.h"

namespace fieldcal {
std::string textOf(const CameraModel& model) {
    return formatString("fxfy = [%f %f] cxcy=[%f %f] k1k2k3=[%f %f %f] p1p2=[%f %f]", model.fx, model.fy, model.cx,
                        model.cy, 0.0, 0.0, 0.0, 0.0, 0.0);
}

std::string textOf(const CameraExtrinsics& extrinsics) {
    const Angles3 angles = anglesFromRotation(widened(extrinsics.rotation.data()));
    const auto& t = extrinsics.translation;
    return formatString("R [% .4f % .4f % .4f] T [% .4f % .4f % .4f]", angles[0] * kDegreesPerRadian,
                        angles[1] * kDegreesPerRadian, angles[2] * kDegreesPerRadian, t[0], t[1], t[2]);
}

}  // namespace fieldcal
