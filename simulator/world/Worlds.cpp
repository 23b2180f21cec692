#include "simulator/world/Worlds.h"

#include "simulator/world/Builder.h"

#include <cmath>

namespace fieldcal::world {

void Builder::drawDaylight() {
    const float azimuth = random.between(0, 6.2832F), elevation = random.between(0.45F, 0.95F);
    daylight.light.toSun = {std::cos(elevation) * std::sin(azimuth), -std::sin(elevation),
                            std::cos(elevation) * std::cos(azimuth)};
    daylight.cloudiness = random.between(0.15F, 0.7F);
}

std::unique_ptr<Stage> Builder::finish() {
    auto stage = std::make_unique<Stage>();
    stage->world = std::make_unique<World>(std::move(mesh), std::move(materials), daylight, std::move(noise), sway);
    return stage->world->isValid() ? std::move(stage) : nullptr;
}

namespace {

using Build = std::unique_ptr<Stage> (*)(std::uint64_t);
const std::vector<std::pair<std::string, Build>>& builders() {
    static const std::vector<std::pair<std::string, Build>> all{
        {"square", buildSquare},       {"street", buildStreet}, {"park", buildPark},
        {"mountains", buildMountains}, {"wall", buildWall},     {"repetitive", buildRepetitive},
        {"near", buildNear},           {"moving", buildMoving}, {"night", buildNight}};
    return all;
}

}  // namespace

const std::vector<std::string>& worldNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const auto& [name, build] : builders())
            list.push_back(name);
        return list;
    }();
    return names;
}

std::unique_ptr<Stage> buildWorld(const std::string& name, std::uint64_t seed) {
    for (const auto& [known, build] : builders())
        if (known == name) return build(seed);
    return nullptr;
}

}  // namespace fieldcal::world
