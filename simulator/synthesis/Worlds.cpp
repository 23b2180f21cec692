#include "simulator/synthesis/Worlds.h"

#include "simulator/synthesis/Planting.h"
#include "simulator/synthesis/Synthesis.h"
#include "simulator/synthesis/Town.h"

#include <array>
#include <cmath>
#include <functional>

namespace fieldcal::synthesis {

namespace {

Light drawLight(Random& random) {
    const float azimuth = random.between(0, 6.2832F), elevation = random.between(0.5F, 0.95F);
    Light light;
    light.toSun = {std::cos(elevation) * std::sin(azimuth), -std::sin(elevation),
                   std::cos(elevation) * std::cos(azimuth)};
    return light;
}

Paving drawPaving(Random& random) {
    static const std::array<Paving, 4> kinds{Paving::slabs, Paving::cobbles, Paving::asphalt, Paving::gravel};
    return kinds[random.index(4)];
}

std::unique_ptr<World> square(std::uint64_t seed) {
    Random random(seed, "square");
    const Light light = drawLight(random);
    const float eye = random.between(1.6F, 3.2F);
    auto scene = std::make_unique<Scene>(seed, light, eye, drawPaving(random), random.between(0.15F, 0.75F), 0.09F);
    layLawns(*scene, 3 + random.index(4), random);
    buildRing(*scene, TownPlan{}, random);
    plantTrees(*scene, Planting{16, 0.2F, 12, 40}, random);
    standThings(*scene, 26, random);
    scene->finish();
    auto world = std::make_unique<World>();
    world->field = std::move(scene);
    return world;
}

std::unique_ptr<World> park(std::uint64_t seed) {
    Random random(seed, "park");
    const Light light = drawLight(random);
    auto scene = std::make_unique<Scene>(seed, light, random.between(1.6F, 2.4F), Paving::lawn,
                                         random.between(0.1F, 0.7F), 0.12F);
    TownPlan plan;
    plan.nearest = 60, plan.farthest = 100, plan.gaps = 0.7F;
    buildRing(*scene, plan, random);
    plantTrees(*scene, Planting{60, 0.12F, 9, 70}, random);
    plantBushes(*scene, 26, random);
    standThings(*scene, 5, random);
    scene->finish();
    auto world = std::make_unique<World>();
    world->field = std::move(scene);
    world->lowestPitchDeg = -6, world->highestPitchDeg = 7;
    return world;
}

std::unique_ptr<World> repetitive(std::uint64_t seed) {
    Random random(seed, "repetitive");
    const Light light = drawLight(random);
    auto scene = std::make_unique<Scene>(seed, light, 2.0F, Paving::slabs, 0.1F, 0.0F);
    TownPlan plan;
    plan.identicalWindows = true, plan.gaps = 0;
    buildRing(*scene, plan, random);
    scene->finish();
    auto world = std::make_unique<World>();
    world->field = std::move(scene);
    world->lowestPitchDeg = 8, world->highestPitchDeg = 16;
    return world;
}

/// Plaster without a mark on it, a little brighter towards one side.
class PlainWall : public DirectionField {
public:
    explicit PlainWall(Random& random) : brighter_(drawLight(random).toSun) {}
    Spectrum radiance(const cv::Vec3f& direction) const override {
        return materials::plasterWhite.reflectance * (0.75F + 0.15F * direction.dot(brighter_));
    }

private:
    cv::Vec3f brighter_;
};

std::unique_ptr<World> wall(std::uint64_t seed) {
    Random random(seed, "wall");
    auto world = std::make_unique<World>();
    world->field = std::make_unique<PlainWall>(random);
    return world;
}

std::unique_ptr<World> night(std::uint64_t seed) {
    auto world = square(seed);
    world->darkness = 0.05;
    return world;
}

using Builder = std::function<std::unique_ptr<World>(std::uint64_t)>;
const std::vector<std::pair<std::string, Builder>>& builders() {
    static const std::vector<std::pair<std::string, Builder>> all{
        {"square", square}, {"park", park}, {"wall", wall}, {"repetitive", repetitive}, {"night", night}};
    return all;
}

}  // namespace

const std::vector<std::string>& worldNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const auto& [name, builder] : builders())
            list.push_back(name);
        return list;
    }();
    return names;
}

std::unique_ptr<World> buildWorld(const std::string& name, std::uint64_t seed) {
    for (const auto& [known, builder] : builders())
        if (known == name) return builder(seed);
    return nullptr;
}

}  // namespace fieldcal::synthesis
