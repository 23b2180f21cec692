#pragma once

#include "camera/ImageFrame.h"
#include "simulator/synthesis/Random.h"
#include "simulator/world/Picture.h"

namespace fieldcal::world {

/// A plain model of infrared stereo in sunlight. Disparity is focal length times baseline over depth, in pixels; it
/// carries normal noise, comes in steps, and is found only where both infrared cameras see the surface.
struct StereoModel {
    double nearest = 0.5, farthest = 10;  ///< metres; nothing is measured outside
    double baseline = 0.055;              ///< metres; the second infrared camera stands to the right
    double noisePx = 0.06;
    double stepPx = 1.0 / 32;
    double slantLimit = 0.12;  ///< cosine between ray and surface below which the two views differ too much
};

/// Millimetres along the camera's z axis, from the geometry alone; 0 where the sky is or beyond `farthest` metres.
cv::Mat_<float> exactDepth(const World& world, const synthesis::RayGrid& pixels, const Pose& pose, double farthest);

/// Depth in millimetres as the module delivers it, 0 for none. `pixels`: one ray a pixel; `focalPx`: along x.
ImageFrame16 takeDepth(const World& world, const synthesis::RayGrid& pixels, const Pose& pose, double focalPx,
                       const StereoModel& model, synthesis::Random& random);

}  // namespace fieldcal::world
