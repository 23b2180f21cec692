#pragma once

#include "camera/Rotation.h"
#include "engine/SolutionQuality.h"

#include <array>
#include <optional>

namespace fieldcal {

/// How a solution compares with the rotation stored in the module.
enum class StoredRotation { StillFits, HasTurned, UnusuallyFar };

/// The rotation of a colour camera relative to the orientation stored in the module.
struct FoundTurn {
    std::array<double, 3> anglesDeg{};           ///< about the camera's own X, Y and Z axis
    std::optional<vq::SolutionQuality> quality;  ///< none when the solution comes from the vote without a final fit

    /// The stored rotation still fits when the change is within three standard deviations about each axis and below
    /// 0.1° in total. A change of more than 3° is unusually far: modules that were dropped or bent drift by a degree or
    /// two.
    StoredRotation verdict() const;
};

FoundTurn foundTurn(const Rotation& stored, const Rotation& found, const std::optional<vq::SolutionQuality>& quality);

}  // namespace fieldcal
