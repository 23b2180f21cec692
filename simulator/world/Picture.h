#pragma once

#include "simulator/synthesis/Camera.h"
#include "simulator/world/World.h"

#include <functional>

namespace fieldcal::world {

/// Where a camera stands: X_camera = camera_world · (X_world − centre). Metres.
struct Pose {
    cv::Matx33d camera_world = cv::Matx33d::eye();
    cv::Vec3d centre{0, 0, 0};
};

/// The pose of a colour camera with X_colour = rotation · X_depth + translation (metres).
Pose colourPose(const Pose& depth, const cv::Matx33d& rotation, const cv::Vec3d& translation);

/// Mean radiance over every pixel, blurred by a lens of Gaussian spread `lensSigma` pixels. Channels: red, green,
/// blue, infrared. All processors work on it; the result does not depend on their number.
cv::Mat_<cv::Vec4f> takePicture(const World& world, const synthesis::RayGrid& grid, const Pose& pose, double lensSigma);

/// Calls `row` for 0 … rows − 1 on all processors, in no particular order, and returns when all are done.
void forEachRow(int rows, const std::function<void(int)>& row);

}  // namespace fieldcal::world
