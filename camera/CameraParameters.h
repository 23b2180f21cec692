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

/// Corrects for the whole-pixel size of a colour image that was scaled into the infrared geometry.
/// The colour `CameraModel` describes an image scaled by exactly fx_infrared / fx_colour horizontally and fy_infrared /
/// fy_colour vertically. The delivered image has a whole number of pixels, and its height follows the horizontal
/// factor. A delivered pixel position p corresponds to the model position (p + 0.5) · factor − 0.5 along each axis.
struct ColourScaling {
    float x = 1;  ///< model pixels per delivered pixel, horizontally; close to 1
    float y = 1;  ///< the same, vertically
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
    PerColourCamera<ColourCameraParameters> colour;  ///< the models of an absent camera are all zero
};

}  // namespace fieldcal
