#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Sprite.h"

namespace fieldcal::synthesis {

/// Things that stand about in a street, painted from the side.
Sprite paintCar(const Light& light, float texelsPerMetre, Random& random);
Sprite paintLamp(const Light& light, float texelsPerMetre, Random& random);
/// A post with a painted board; inks that the near infrared does not see are common on it.
Sprite paintBoard(const Light& light, float texelsPerMetre, Random& random);

/// Cables that hang across the whole width, 20 m.
Sprite paintCables(const Light& light, float texelsPerMetre, Random& random);

}  // namespace fieldcal::synthesis
