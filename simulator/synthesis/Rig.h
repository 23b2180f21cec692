#pragma once

#include "session/RecordedSession.h"

#include <array>
#include <cstdint>
#include <optional>

namespace fieldcal::synthesis {

struct RigWishes {
    bool platform = false;
    std::optional<std::array<double, 3>> thirdDriftDeg, platformDriftDeg;
    bool baselines = true;  ///< false: all cameras stand at one place, so that there is no parallax
};

/// The cameras of a session with their factory records and their true rotations, drawn from the seed. What belongs
/// to the platform camera is drawn apart: asking for it changes nothing else. `frames` is left empty.
session::SessionDescription drawRig(std::uint64_t seed, const RigWishes& wishes);

}  // namespace fieldcal::synthesis
