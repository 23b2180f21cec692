#pragma once

#include "simulator/synthesis/Noise.h"
#include "simulator/synthesis/Random.h"
#include "simulator/world/Shapes.h"

namespace fieldcal::world {

/// Mountains around a viewer at the origin above a valley. Nothing is nearer than 100 m to any point less than 5 m from
/// the origin.
class Terrain {
public:
    Terrain(const synthesis::Noise& noise, synthesis::Random& random);
    /// Returns the height in metres above the viewer's eye, negative below it.
    float height(float x, float z) const;

private:
    const synthesis::Noise& noise_;
    float valley_, rise_, shiftX_, shiftZ_;
};

}  // namespace fieldcal::world
