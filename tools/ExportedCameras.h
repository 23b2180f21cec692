#pragma once

#include "tools/CameraPair.h"

#include <Eigen/Core>

#include <array>

namespace fieldcal {

/// Intrinsics whose principal points lie where they are seen in the picture itself, with the centre of the first pixel
/// at (0, 0), as other programs expect it.
struct ExportedCameras {
    session::Intrinsics infrared;
    session::Intrinsics colour;
    std::optional<UnrectifiedCamera> unrectified;
};
ExportedCameras exportedCameras(const CameraPair& pair);

/// The reverse for a colour camera's intrinsics: their principal point moves to where the scaled image needs it.
session::Intrinsics inScalingPixels(session::Intrinsics colour, const session::Intrinsics& infrared);

/// The raw camera that keeps each raw pixel's place in the rectified image, as nearly as such a model can, when the
/// principal point of that image moves from one place to another. What is left is a few hundredths of a pixel at most.
UnrectifiedCamera movedPrincipalPoint(const UnrectifiedCamera& camera, const session::Intrinsics& from,
                                      const session::Intrinsics& to);

/// The pose of the colour camera in the frame of the infrared camera, X_infrared = rotation · X_colour + translation:
/// the inverse of the pair's own rotation and translation.
struct ColourPose {
    Eigen::Vector3d translationM;
    Eigen::Vector3d rollPitchYawRad;  ///< about the fixed axes X, Y and Z, in this order
    Eigen::Vector4d quaternion;       ///< x, y, z, w
};
ColourPose colourPose(const CameraPair& pair);

}  // namespace fieldcal
