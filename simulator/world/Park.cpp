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

void plantBushes(Builder& b, const Lawn& lawn, bool swaying) {
    for (int i = 0; i < 34; ++i) {
        const auto leaf = drawLeaf(b);
        const float size = b.random.between(0.5F, 1.5F);
        const cv::Vec3f foot = lawn.at(b.random.between(5, 35), b.random.between(0, 6.2832F));
        Mesh& mesh = swaying ? b.sway.mesh : b.mesh;
        const std::size_t first = mesh.vertices.size();
        const float leafSize = b.random.between(0.08F, 0.14F) * (swaying ? 1.6F : 1.0F);
        addBush(mesh, foot, {size * 1.2F, size, size * 1.2F}, swaying ? 1200 : 3000, leafSize, leaf, b.random);
        if (swaying) b.sway.plant(first, foot, 1.6F * size, 0.06F * size);
    }
}

/// Moving plants cost about twelve times as much as static ones, so they have fewer and larger leaves.
void addPlants(Builder& b, const Lawn& lawn, bool swaying) {
    const auto anyAngle = [&] { return b.random.between(0, 6.2832F); };
    const auto near = swaying ? plantSwayingTree : plantTree;
    for (int i = 0; i < 26; ++i)
        near(b, lawn.at(b.random.between(9, 38), anyAngle()), b.random.between(5, 12), swaying ? 3000 : 10000);
    for (int i = 0; i < 150; ++i)
        plantTree(b, lawn.at(b.random.between(38, 95), anyAngle()), b.random.between(8, 18), 2200);
    plantBushes(b, lawn, swaying);
}

Lawn layLawn(Builder& b) {
    const Lawn lawn{*b.noise, b.random.between(1.6F, 2.2F)};
    const auto turf = b.material<Turf>(*b.noise);
    addHeightField(
        b.mesh, {0.05F, 400, 256, 160}, [&](float x, float z) { return lawn.height(x, z); }, turf);
    return lawn;
}

void furnish(Builder& b, const Lawn& lawn) {
    for (int i = 0; i < 7; ++i)
        addFurniture(b, lawn.at(b.random.between(5, 18), b.random.between(0, 6.2832F)), b.random.between(0, 6.2832F));
    for (int i = 0; i < 4; ++i)
        addLamp(b, lawn.at(b.random.between(7, 25), b.random.between(0, 6.2832F)));
    addFountain(b, lawn.at(b.random.between(7, 12), b.random.between(0, 6.2832F)), b.random.between(1.8F, 3));
    buildFarHouses(b, lawn.eye, 110, 8);
}

std::unique_ptr<Stage> build(Builder& b, bool swaying) {
    b.drawDaylight();
    b.daylight.ridgeHeight = 0.10F;
    const Lawn lawn = layLawn(b);
    addPlants(b, lawn, swaying);
    furnish(b, lawn);
    auto stage = b.finish();
    if (stage) stage->lowestPitchDeg = -6, stage->highestPitchDeg = 7;
    return stage;
}

}  // namespace

std::unique_ptr<Stage> buildPark(std::uint64_t seed) {
    Builder b(seed, "park");
    return build(b, false);
}

/// The park in the wind: trees and bushes sway, clouds drift.
std::unique_ptr<Stage> buildMoving(std::uint64_t seed) {
    Builder b(seed, "moving");
    b.daylight.wind = {b.random.between(0.004F, 0.01F), b.random.between(-0.004F, 0.004F)};
    return build(b, true);
}

}  // namespace fieldcal::world
