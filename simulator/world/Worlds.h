#pragma once

#include "simulator/world/World.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace fieldcal::world {

/// A world with how the cameras are led through it. The eye stands at the origin.
struct Stage {
    std::unique_ptr<World> world;
    double lowestPitchDeg = -4, highestPitchDeg = 9;  ///< upwards positive
    /// Below 1 the cameras cannot reach their exposure: the share of the light they would need.
    double darkness = 1;
    /// Whether what is seen depends on the time.
    bool moves = false;
};

/// The worlds that can be built, in the order in which they are listed to people.
const std::vector<std::string>& worldNames();

/// Null when the name is none of `worldNames()`, or ray casting cannot be started. Takes up to some seconds.
std::unique_ptr<Stage> buildWorld(const std::string& name, std::uint64_t seed);

}  // namespace fieldcal::world
