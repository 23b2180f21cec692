#include "simulator/world/GroundMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Neighbourhood.h"
#include "simulator/world/Plants.h"
#include "simulator/world/Shapes.h"
#include "simulator/world/StreetThings.h"

#include <cmath>

namespace fieldcal::world {

namespace {

/// Gently rolling ground, level around the viewer.
struct Lawn {
    const synthesis::Noise& noise;
    float eye;
    float height(float x, float z) const {
        const float away = synthesis::smoothStep(3, 40, std::sqrt(x * x + z * z));
        return -eye + away * 1.3F * noise.fractal(x, z, 45, 4, 0.4F);
    }
    cv::Vec3f at(float distance, float angle) const {
        const float x = distance * std::sin(angle), z = distance * std::cos(angle);
        return {x, -height(x, z), z};
    }
};

void plantEverything(Builder& b, const Lawn& lawn) {
    const auto anyAngle = [&] { return b.random.between(0, 6.2832F); };
    for (int i = 0; i < 26; ++i)
        plantTree(b, lawn.at(b.random.between(9, 38), anyAngle()), b.random.between(5, 12), 8000);
    for (int i = 0; i < 150; ++i)
        plantTree(b, lawn.at(b.random.between(38, 95), anyAngle()), b.random.between(8, 18), 2600);
    for (int i = 0; i < 34; ++i) {
        const auto leaf = drawLeaf(b);
        const float size = b.random.between(0.5F, 1.5F);
        addBush(b.mesh, lawn.at(b.random.between(5, 35), anyAngle()), {size * 1.2F, size, size * 1.2F}, 3000,
                b.random.between(0.08F, 0.14F), leaf, b.random);
    }
}

}  // namespace

std::unique_ptr<Stage> buildPark(std::uint64_t seed) {
    Builder b(seed, "park");
    b.drawDaylight();
    b.daylight.ridgeHeight = 0.10F;
    const Lawn lawn{*b.noise, b.random.between(1.6F, 2.2F)};
    const auto turf = b.material<Turf>(*b.noise);
    addHeightField(
        b.mesh, {0.05F, 400, 256, 160}, [&](float x, float z) { return lawn.height(x, z); }, turf);
    plantEverything(b, lawn);
    for (int i = 0; i < 7; ++i)
        addFurniture(b, lawn.at(b.random.between(5, 18), b.random.between(0, 6.2832F)), b.random.between(0, 6.2832F));
    for (int i = 0; i < 4; ++i)
        addLamp(b, lawn.at(b.random.between(7, 25), b.random.between(0, 6.2832F)));
    buildFarHouses(b, lawn.eye, 110, 8);
    auto stage = b.finish();
    if (stage) stage->lowestPitchDeg = -6, stage->highestPitchDeg = 7;
    return stage;
}

}  // namespace fieldcal::world
