#pragma once

#include "simulator/synthesis/Camera.h"
#include "simulator/world/Interruption.h"
#include "simulator/world/World.h"

#include <functional>

namespace fieldcal::world {

/// The pose of a camera: X_camera = camera_world · (X_world − centre). Metres.
struct Pose {
    cv::Matx33d camera_world = cv::Matx33d::eye();
    cv::Vec3d centre{0, 0, 0};
};

/// The pose of a colour camera with X_colour = rotation · X_depth + translation (metres).
Pose colourPose(const Pose& depth, const cv::Matx33d& rotation, const cv::Vec3d& translation);

/// The pose and the time of an image, and the kind of camera.
struct Shot {
    Pose pose;
    float seconds = 0;                     ///< time in a moving world
    bool infrared = false;                 ///< otherwise colour; differences in bands that the camera does not see are
                                           ///< ignored
    double lensSigma = 0.5;                ///< standard deviation of the lens's Gaussian blur, pixels
    Interruption* interruption = nullptr;  ///< once it has ended, the rest of the image stays black
    cv::Vec2f offset{0, 0};                ///< offset of all rays (x/z, y/z) from those of the grid
};

struct RenderedImage {
    cv::Mat_<cv::Vec4f> light;         ///< mean radiance over every pixel: red, green, blue, infrared
    cv::Mat_<float> depth;             ///< metres along the axis at the centre of every pixel; 0 for the sky
    cv::Mat_<std::uint8_t> reflected;  ///< 255 where the centre of a pixel shows a reflection
};

/// Returns the ray through the centre of a pixel.
cv::Vec2f middleRay(const synthesis::RayGrid& grid, int x, int y);

/// Renders an image. Pixels that differ from their neighbours are supersampled on the grid; all others take one sample
/// in the centre. Rendering uses all processors; the result does not depend on their number.
RenderedImage renderImage(const World& world, const synthesis::RayGrid& grid, const Shot& shot);

/// Calls `row` for 0 … rows − 1 on all processors, in no particular order. Returns when all calls have been made, or
/// earlier and incomplete when `interruption` (may be null) ends.
void forEachRow(int rows, const std::function<void(int)>& row, Interruption* interruption = nullptr);

}  // namespace fieldcal::world
