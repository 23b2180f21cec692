#pragma once

#include "simulator/world/View.h"

namespace fieldcal::world {

/// Adds the projector's dots to both infrared images: a fixed pattern of directions from 28 mm beside the left imager,
/// attenuated with the square of the distance. `light`: around the module, 1 in the sun, where dots are visible to
/// about 1 m; a lit room has about 1/16, where they are visible to 4 m. Images whose depth has a different pixel grid
/// are left unchanged.
void addEmitterDots(double light, View* view);

}  // namespace fieldcal::world
