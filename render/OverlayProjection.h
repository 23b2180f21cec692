#pragma once

#include "render/OverlayCalibration.h"

#include <Eigen/Core>

namespace fieldcal {

/// Rigid transform from depth to colour: rotation in the upper-left 3 x 3, translation (metres) in the last column.
using OverlayPose = Eigen::Matrix<float, 4, 4, Eigen::RowMajor>;

OverlayPose overlayPose(const std::array<float, 9>& rotation, const std::array<float, 3>& translation);

/// Returns the angle about the vertical axis, in degrees, of a row-major rotation Rz·Ry·Rx.
double verticalAngleDeg(const std::array<float, 9>& rotation);

/// The range of distances from the colour camera, in metres, in which depth is drawn. The far end lies beyond the
/// largest depth of 65.535 m.
constexpr double kNearMetres = 0.1;
constexpr double kFarMetres = 70;

/// Returns the matrix from the points of a depth cloud to OpenGL's clip coordinates of the whole colour image, whose
/// left edge is at -1 and whose upper edge is at +1 (OpenGL's y grows upwards).
Eigen::Matrix4d overlayProjection(const OverlayCalibration& cameras, const OverlayPose& pose);

/// Returns the number of pixels that a depth pixel covers along the larger of the two axes, where the colour image
/// fills `width` x `height` pixels.
double depthPixelSize(const OverlayCalibration& cameras, int width, int height);
/// Returns the share of the colour image that a depth pixel covers.
double depthPixelArea(const OverlayCalibration& cameras);

}  // namespace fieldcal
