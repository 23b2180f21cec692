#pragma once

#include "simulator/synthesis/DirectionField.h"

#include <cstdint>
#include <memory>
#include <string>

namespace fieldcal::synthesis {

/// A world by name, with how the cameras are led through it.
struct World {
    std::unique_ptr<DirectionField> field;
    double lowestPitchDeg = -4, highestPitchDeg = 9;  ///< upwards positive
    /// Below 1 the cameras cannot reach their exposure: the share of the light they would need.
    double darkness = 1;
};

/// Null when the name is none of `worldNames()`. Takes up to some seconds.
std::unique_ptr<World> buildWorld(const std::string& name, std::uint64_t seed);

}  // namespace fieldcal::synthesis
