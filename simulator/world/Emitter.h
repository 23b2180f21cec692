#pragma once

#include "simulator/world/View.h"

namespace fieldcal::world {

/// Adds what both infrared imagers see of the projector's dots: a fixed pattern of directions from 28 mm beside the
/// left one, fading with the square of the distance. `light`: around the module, 1 in the sun, where dots are seen to
/// about 1 m; a lit room has about 1/16, and they are seen to 4 m. Nothing is added to a picture whose depth has other
/// pixels.
void addEmitterDots(double light, View* view);

}  // namespace fieldcal::world
