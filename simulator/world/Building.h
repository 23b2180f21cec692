#pragma once

#include "simulator/synthesis/FacadeStyle.h"
#include "simulator/world/Builder.h"

namespace fieldcal::world {

/// A house whose front rises from `corner` along `along` (horizontal unit vector). The inside lies to the right of
/// `along` seen from above, so that `along` × up points out of the front.
struct House {
    cv::Vec3f corner, along;
    float length = 12, depth = 10, height = 12;
    float roofRise = 3;  ///< 0 for a flat roof
    synthesis::FacadeStyle style;
};

/// Adds the house with windows, sills and balconies as geometry.
void addHouse(Builder& builder, const House& house);

}  // namespace fieldcal::world
