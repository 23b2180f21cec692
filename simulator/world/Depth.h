#pragma once

#include "camera/ImageFrame.h"
#include "simulator/synthesis/Random.h"
#include "simulator/world/View.h"

namespace fieldcal::world {

/// Metres between the two infrared cameras; the second stands to the right of the first, which is the depth camera.
inline constexpr double stereoBaseline = 0.055;

/// A plain model of infrared stereo. Disparity is focal length times baseline over depth, in pixels; it carries normal
/// noise, comes in steps, and is found only where the infrared picture has texture along the rows.
struct StereoModel {
    double nearest = 0.5, farthest = 10;  ///< metres; nothing is measured outside
    double noisePx = 0.06;                ///< where there is plenty of texture; up to three times that elsewhere
    double stepPx = 1.0 / 32;
    bool emitter = false;  ///< its dots give surfaces the texture they lack, to about 1 m in the sun
    double darkness = 1;   ///< share of the light that a full exposure would need, as for the other sensors
    double light = 1;      ///< around the module, 1 in the sun; a lit room has about 1/16, and the dots reach 4 m
};

/// Sets `depth`, `unmatched` and `depthCamera` of a view from the picture that the depth camera took of the world.
void seeDepth(const World& world, const synthesis::RayGrid& grid, const Shot& shot, const Picture& picture,
              const session::Intrinsics& camera, View* view);

/// Depth in millimetres as the module delivers it, 0 for none. The module calculates it from both infrared pictures: a
/// right imager that deceives it moves every disparity.
ImageFrame16 measureDepth(const View& view, const StereoModel& model, synthesis::Random& random);

}  // namespace fieldcal::world
