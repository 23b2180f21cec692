#pragma once

#include "camera/Rotation.h"
#include "engine/SolutionQuality.h"

#include <array>
#include <optional>

namespace fieldcal {

/// What a solution says about the rotation that the module holds.
enum class StoredRotation { StillFits, HasTurned, UnusuallyFar };

/// By how much a colour camera has turned against where the stored rotation has it.
struct FoundTurn {
    std::array<double, 3> anglesDeg{};           ///< about the camera's own X, Y and Z axis
    std::optional<vq::SolutionQuality> quality;  ///< none when only the vote stands behind the solution

    /// The stored rotation still fits when the turn is within three deviations about each axis and below 0.1° in all.
    /// A turn of more than 3° is unusually far: modules that were dropped or bent drift by a degree or two.
    StoredRotation verdict() const;
};

FoundTurn foundTurn(const Rotation& stored, const Rotation& found, const std::optional<vq::SolutionQuality>& quality);

}  // namespace fieldcal
