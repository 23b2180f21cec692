#pragma once

#include "camera/ImageFrame.h"
#include "simulator/synthesis/Random.h"
#include "simulator/world/View.h"

namespace fieldcal::world {

/// Distance in metres between the two infrared cameras. The second one is to the right of the first, which is the depth
/// camera.
inline constexpr double kStereoBaselineM = 0.055;

/// A simple model of infrared stereo. Disparity is focal length times baseline over depth, in pixels. It has normally
/// distributed noise, is quantised, and is found only where the infrared image has texture along the rows.
struct StereoModel {
    double nearest = 0.5, farthest = 10;  ///< metres; nothing is measured outside
    double noisePx = 0.06;                ///< with ample texture; up to three times that elsewhere
    double stepPx = 1.0 / 32;
    bool emitter = false;  ///< its dots add texture to surfaces, up to about 1 m in the sun
    double darkness = 1;   ///< available light relative to that of a full exposure, as for the other sensors
    double light = 1;      ///< around the module, 1 in the sun; a lit room has about 1/16, where the dots reach 4 m
};

/// Sets `depth`, `unmatched` and `depthCamera` of a view from the depth camera's rendered image of the world.
void seeDepth(const World& world, const synthesis::RayGrid& grid, const Shot& shot, const RenderedImage& image,
              const session::Intrinsics& camera, View* view);

/// Returns depth in millimetres as the module delivers it, 0 for none. The module computes it from both infrared
/// images, so a misaligned right imager shifts every disparity.
ImageFrame16 measureDepth(const View& view, const StereoModel& model, synthesis::Random& random);

}  // namespace fieldcal::world
