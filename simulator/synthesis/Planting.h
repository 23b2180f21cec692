#pragma once

#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Scene.h"

namespace fieldcal::synthesis {

struct Planting {
    int count = 16;
    float bareShare = 0.2F;             ///< of the trees, without leaves
    float nearest = 10, farthest = 40;  ///< metres
};

void plantTrees(Scene& scene, const Planting& planting, Random& random);
/// Bushes and hedges.
void plantBushes(Scene& scene, int count, Random& random);

}  // namespace fieldcal::synthesis
