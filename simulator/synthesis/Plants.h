#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Sprite.h"

namespace fieldcal::synthesis {

enum class PlantKind { broadleaf, conifer, bare, bush, hedge };

struct PlantShape {
    PlantKind kind = PlantKind::broadleaf;
    float height = 8;  ///< metres
    float width = 6;   ///< metres
};

/// Paints a plant as seen by a viewer for whom the sun stands towards `sun` (x right, y up, z away from the viewer).
Sprite paintPlant(const PlantShape& shape, const Light& light, const cv::Vec3f& sun, float texelsPerMetre,
                  Random& random);

}  // namespace fieldcal::synthesis
