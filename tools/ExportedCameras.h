#pragma once

#include "tools/CameraPair.h"

#include <Eigen/Core>

#include <array>

namespace fieldcal {

/// Intrinsics whose principal points are in pixels of the image itself, with the centre of the first pixel at (0, 0),
/// as other programs expect.
struct ExportedCameras {
    session::Intrinsics infrared;
    session::Intrinsics colour;
    std::optional<UnrectifiedCamera> unrectified;
};
ExportedCameras exportedCameras(const CameraPair& pair);

/// The reverse conversion for a colour camera: its principal point is moved to the position required after scaling
/// (`docs/conventions.md`).
session::Intrinsics inScalingPixels(session::Intrinsics colour, const session::Intrinsics& infrared);

/// Returns the raw camera model that maps each raw pixel to the same place of the rectified image, as closely as such a
/// model can, when the principal point of the rectified image moves from one position to another. The remaining error
/// is a few hundredths of a pixel at most.
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
