#include "simulator/world/Builder.h"
#include "simulator/world/GroundMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Plants.h"
#include "simulator/world/Terrain.h"

#include <cmath>

namespace fieldcal::world {

namespace {

constexpr float kMinDistance = 110;

cv::Vec3f placeOnGround(const Terrain& terrain, synthesis::Random& random, float farthest) {
    const float share = random.between(0, 1), angle = random.between(0, 6.2832F);
    const float distance = 120 * std::pow(farthest / 120, share);
    const float x = distance * std::sin(angle), z = distance * std::cos(angle);
    return {x, -terrain.height(x, z), z};
}

void plantConifers(Builder& b, const Terrain& terrain, int count) {
    const auto needles = b.material<Leaf>(synthesis::Spectrum{0.035F, 0.06F, 0.03F, 0.30F});
    const auto larch = b.material<Leaf>(synthesis::Spectrum{0.07F, 0.11F, 0.035F, 0.46F});
    for (int i = 0; i < count; ++i) {
        const cv::Vec3f foot = placeOnGround(terrain, b.random, 1800);
        const float clump = b.noise->fractal(foot[0] + 70, foot[2], 160, 5, 0.6F);
        const float height = b.random.between(7, 21);
        if (clump < 0.1F || cv::norm(foot) < kMinDistance + 2 * height) continue;
        addConifer(b.mesh, foot + cv::Vec3f(0, 1, 0), height, b.random.chance(0.7) ? needles : larch, b.random);
    }
}

void strewRocks(Builder& b, const Terrain& terrain, int count) {
    const auto rock = b.material<Solid>(synthesis::Material{{0.36F, 0.34F, 0.31F, 0.38F}, 0.22F, 0.09F, 0.09F},
                                        *b.noise, Solid::Finish{5, 0, 0.4F});
    for (int i = 0; i < count; ++i) {
        const cv::Vec3f foot = placeOnGround(terrain, b.random, 700);
        const float heap = b.noise->fractal(foot[0] - 900, foot[2], 120, 5, 0.6F);
        const float size = b.random.between(1, 9) * b.random.between(0.3F, 1);
        if (heap < 0.2F || cv::norm(foot) < kMinDistance + 2 * size) continue;
        const float shift = b.random.between(-90, 90);
        const auto bump = [&](const cv::Vec3f& d) {
            return 0.8F + 0.35F * b.noise->fractal(d[0] + shift + d[1], d[2] - d[1] * 0.7F, 1.2F, 0.1F, 0.6F);
        };
        addBall(b.mesh, foot, {size, size * b.random.between(0.5F, 1.1F), size * b.random.between(0.6F, 1)}, 9, rock,
                bump);
    }
}

}  // namespace

std::unique_ptr<Stage> buildMountains(std::uint64_t seed) {
    Builder b(seed, "mountains");
    b.drawDaylight();
    b.daylight.clarity = b.random.between(4, 9);
    const Terrain terrain(*b.noise, b.random);
    const auto ground = b.material<Mountainside>(*b.noise, b.random.between(150, 350), b.random.between(450, 800));
    addHeightField(
        b.mesh, PolarField{}, [&](float x, float z) { return terrain.height(x, z); }, ground);
    plantConifers(b, terrain, 16000);
    strewRocks(b, terrain, 1500);
    return b.finish();
}

}  // namespace fieldcal::world
