#pragma once

#include "camera/ColourCamera.h"

#include <array>
#include <cstdint>

namespace fieldcal {

/// Pinhole model of a rectified camera. Pixels; the first pixel's centre is at (0, 0).
struct CameraModel {
    std::int32_t width = 0;
    std::int32_t height = 0;
    float fx = 0;
    float fy = 0;
    float cx = 0;
    float cy = 0;
};

/// Rigid transform from the depth camera to a colour camera: X_colour = rotation · X_depth + translation.
struct CameraExtrinsics {
    std::array<float, 9> rotation{1, 0, 0, 0, 1, 0, 0, 0, 1};  ///< row-major, orthonormal, determinant 1
    std::array<float, 3> translation{0, 0, 0};                 ///< metres
};

/// What whole-pixel picture sizes leave over when a colour picture is brought into the infrared geometry.
///
/// The colour `CameraModel` describes a picture scaled by exactly fx_infrared / fx_colour across and
/// fy_infrared / fy_colour down. The delivered picture has whole pixels, and its height follows the horizontal
/// factor. A delivered pixel position p belongs to the model position (p + 0.5) · factor − 0.5, axis by axis.
struct ColourScaling {
    float x = 1;  ///< model pixels per delivered pixel, across; close to 1
    float y = 1;  ///< the same, down
};

/// A colour camera as the engine and the overlay use it.
struct ColourCameraParameters {
    CameraModel model;  ///< in the infrared geometry (same focal lengths)
    ColourScaling scaling;
    CameraExtrinsics fromDepth;
};

/// The module's calibration as the engine and the overlay use it.
struct CameraParameters {
    CameraModel infrared;
    CameraModel depth;
    PerColourCamera<ColourCameraParameters> colour;  ///< models are all zero for a camera that is not there
};

}  // namespace fieldcal
