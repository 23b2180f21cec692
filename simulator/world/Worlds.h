#pragma once

#include "simulator/world/World.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace fieldcal::world {

/// A world with the conditions under which the cameras move through it. The viewer's eye is at the origin.
struct Stage {
    std::unique_ptr<World> world;
    double lowestPitchDeg = -4, highestPitchDeg = 9;  ///< upwards positive
    /// Below 1 the cameras cannot reach their exposure: available light relative to that of a full exposure.
    double darkness = 1;
    /// Whether the view depends on the time.
    bool moves = false;
};

/// The available worlds, in the order in which they are listed to users.
const std::vector<std::string>& worldNames();

/// Returns null when the name is not one of `worldNames()`, or when ray casting cannot be started. Takes up to some
/// seconds.
std::unique_ptr<Stage> buildWorld(const std::string& name, std::uint64_t seed);

}  // namespace fieldcal::world
