#pragma once

#include "simulator/synthesis/Random.h"
#include "simulator/world/Worlds.h"

#include <memory>
#include <utility>

namespace fieldcal::world {

/// The parts from which a world is assembled.
struct Builder {
    Builder(std::uint64_t seed, const char* name)
        : random(seed, name), noise(std::make_unique<synthesis::Noise>(seed)) {}

    template <typename Kind, typename... Arguments>
    MaterialId material(Arguments&&... arguments) {
        materials.push_back(std::make_unique<Kind>(std::forward<Arguments>(arguments)...));
        return static_cast<MaterialId>(materials.size() - 1);
    }
    /// Draws daylight with the sun between 25° and 55° above the horizon.
    void drawDaylight();
    std::unique_ptr<Stage> finish();

    synthesis::Random random;
    std::unique_ptr<synthesis::Noise> noise;
    Mesh mesh;
    Sway sway;
    Materials materials;
    Daylight daylight;
    float lampsLit = 0;  ///< radiance of lamp heads; 0: switched off
};

std::unique_ptr<Stage> buildMountains(std::uint64_t seed);
std::unique_ptr<Stage> buildMoving(std::uint64_t seed);
std::unique_ptr<Stage> buildNear(std::uint64_t seed);
std::unique_ptr<Stage> buildNight(std::uint64_t seed);
std::unique_ptr<Stage> buildPark(std::uint64_t seed);
std::unique_ptr<Stage> buildRepetitive(std::uint64_t seed);
std::unique_ptr<Stage> buildSquare(std::uint64_t seed);
std::unique_ptr<Stage> buildStreet(std::uint64_t seed);
std::unique_ptr<Stage> buildWall(std::uint64_t seed);

}  // namespace fieldcal::world
