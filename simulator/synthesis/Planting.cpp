#include "simulator/synthesis/Planting.h"

#include "simulator/synthesis/Panorama.h"
#include "simulator/synthesis/Plants.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

void plant(Scene& scene, const PlantShape& shape, float azimuth, float distance, Random& random) {
    // The viewer looks along the azimuth: the sun as seen from there.
    const cv::Vec3f& sun = scene.light().toSun;
    const float c = std::cos(azimuth), s = std::sin(azimuth);
    const cv::Vec3f seen(c * sun[0] - s * sun[2], -sun[1], s * sun[0] + c * sun[2]);
    const float fits = 900.0F / std::max(shape.height, shape.width);  // texels, for memory's sake
    const float density = std::min(static_cast<float>(Panorama::texelsPerRadian) / distance, fits);
    scene.add(Standing{paintPlant(shape, scene.light(), seen, density, random), azimuth, distance});
    if (shape.kind != PlantKind::bare)
        scene.addCrown(distance * s, distance * c, shape.height * 0.6F, std::min(shape.width, shape.height) * 0.42F);
}

}  // namespace

void plantTrees(Scene& scene, const Planting& planting, Random& random) {
    for (int i = 0; i < planting.count; ++i) {
        PlantShape shape;
        shape.height = random.between(4.5F, 12);
        shape.width = shape.height * random.between(0.55F, 0.9F);
        if (random.chance(planting.bareShare))
            shape.kind = PlantKind::bare;
        else if (random.chance(0.2))
            shape.kind = PlantKind::conifer, shape.width *= 0.6F;
        const float distance =
            planting.nearest + (planting.farthest - planting.nearest) * std::sqrt(random.between(0, 1));
        plant(scene, shape, random.between(0, 6.2832F), distance, random);
    }
}

void plantBushes(Scene& scene, int count, Random& random) {
    for (int i = 0; i < count; ++i) {
        PlantShape shape;
        shape.kind = random.chance(0.3) ? PlantKind::hedge : PlantKind::bush;
        shape.height = random.between(1, 2.6F);
        shape.width = shape.kind == PlantKind::hedge ? shape.height * random.between(3, 7) : shape.height * 1.4F;
        plant(scene, shape, random.between(0, 6.2832F), random.between(8, 30), random);
    }
}

}  // namespace fieldcal::synthesis
