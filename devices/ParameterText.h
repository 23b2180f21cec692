#pragma once

#include "camera/CameraParameters.h"

#include <string>

namespace fieldcal {

/// "fxfy = [.. ..] cxcy=[.. ..] k1k2k3=[.. .. ..] p1p2=[.. ..]"; rectified models have no distortion.
std::string textOf(const CameraModel& model);

/// "R [.. .. ..] T [.. .. ..]": the three angles in degrees, then the translation in metres.
std::string textOf(const CameraExtrinsics& extrinsics);

}  // namespace fieldcal
