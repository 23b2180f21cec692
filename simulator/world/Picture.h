#pragma once

#include "simulator/synthesis/Camera.h"
#include "simulator/world/Interruption.h"
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

/// When and whence a picture is taken, and by what kind of camera.
struct Shot {
    Pose pose;
    float seconds = 0;                     ///< time in a world that moves
    bool infrared = false;                 ///< else colour: what it cannot see needs no care
    double lensSigma = 0.5;                ///< spread of the lens's Gaussian blur, pixels
    Interruption* interruption = nullptr;  ///< once it has ended, the rest of the picture stays black
    cv::Vec2f offset{0, 0};                ///< of all rays (x/z, y/z) from those of the grid
};

struct Picture {
    cv::Mat_<cv::Vec4f> light;         ///< mean radiance over every pixel: red, green, blue, infrared
    cv::Mat_<float> depth;             ///< metres along the axis in the middle of every pixel; 0 for the sky
    cv::Mat_<std::uint8_t> reflected;  ///< 255 where the middle of a pixel shows a mirror
};

/// The ray through the middle of a pixel.
cv::Vec2f middleRay(const synthesis::RayGrid& grid, int x, int y);

/// Takes a picture. Pixels unlike their neighbours take all samples of the grid, the others only one in the middle.
/// All processors work on it; the result does not depend on their number.
Picture takePicture(const World& world, const synthesis::RayGrid& grid, const Shot& shot);

/// Calls `row` for 0 … rows − 1 on all processors, in no particular order, and returns when all are done; or sooner
/// and incomplete when `interruption`, which may be null, ends it.
void forEachRow(int rows, const std::function<void(int)>& row, Interruption* interruption = nullptr);

}  // namespace fieldcal::world
