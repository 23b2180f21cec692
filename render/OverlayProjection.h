#pragma once

#include "render/OverlayCalibration.h"

#include <Eigen/Core>

namespace fieldcal {

/// Rigid transform from depth to colour: rotation in the upper-left 3 x 3, translation (metres) in the last column.
using OverlayPose = Eigen::Matrix<float, 4, 4, Eigen::RowMajor>;

OverlayPose overlayPose(const std::array<float, 9>& rotation, const std::array<float, 3>& translation);

/// Angle about the vertical axis, degrees, of a row-major rotation Rz·Ry·Rx.
double verticalAngleDeg(const std::array<float, 9>& rotation);

/// Metres from the colour camera between which depth is drawn. The far end is beyond the largest depth of 65.535 m.
constexpr double kNearMetres = 0.1;
constexpr double kFarMetres = 70;

/// From the points of a depth cloud to OpenGL's clip coordinates of the whole colour picture, its left edge at -1 and
/// its upper edge at +1 (OpenGL's y grows upwards).
Eigen::Matrix4d overlayProjection(const OverlayCalibration& cameras, const OverlayPose& pose);

/// How many pixels across a depth pixel covers where the colour picture fills `width` x `height` pixels: the larger of
/// the two axes.
double depthPixelSize(const OverlayCalibration& cameras, int width, int height);

}  // namespace fieldcal
