#pragma once

#include "camera/ImageFrame.h"
#include "simulator/synthesis/Random.h"
#include "simulator/world/View.h"

namespace fieldcal::world {

/// Metres between the two infrared cameras; the second stands to the right of the first, which is the depth camera.
inline constexpr double stereoBaseline = 0.055;

/// A plain model of infrared stereo. Disparity is focal length times baseline over depth, in pixels; it carries normal
/// noise and comes in steps.
struct StereoModel {
    double nearest = 0.5, farthest = 10;  ///< metres; nothing is measured outside
    double noisePx = 0.06;
    double stepPx = 1.0 / 32;
    bool emitter = false;  ///< the projector gives surfaces the texture they lack
};

/// Sets `depth`, `unmatched` and `depthFocalPx` of a view from the picture that the depth camera, with `focalPx` along
/// x, took of the world.
void seeDepth(const World& world, const synthesis::RayGrid& grid, const Shot& shot, const Picture& picture,
              double focalPx, View* view);

/// Depth in millimetres as the module delivers it, 0 for none.
ImageFrame16 measureDepth(const View& view, const StereoModel& model, synthesis::Random& random);

}  // namespace fieldcal::world
