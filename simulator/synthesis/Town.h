#pragma once

#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Scene.h"

namespace fieldcal::synthesis {

/// Buildings in a ring around the viewer. Metres.
struct TownPlan {
    float nearest = 16, farthest = 44;
    float gaps = 0.18F;  ///< share of the ring that stays open
    bool identicalWindows = false;
};

void buildRing(Scene& scene, const TownPlan& plan, Random& random);
void layLawns(Scene& scene, int count, Random& random);
/// Cars, lamps, boards and cables.
void standThings(Scene& scene, int count, Random& random);

}  // namespace fieldcal::synthesis
