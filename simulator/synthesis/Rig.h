#pragma once

#include "session/RecordedSession.h"

#include <array>
#include <cstdint>
#include <optional>

namespace fieldcal::synthesis {

struct RigOptions {
    bool platform = false;
    std::optional<std::array<double, 3>> thirdDriftDeg, platformDriftDeg;
    bool baselines = true;  ///< false: all cameras are at one place, so that there is no parallax
    /// Offset in pixels of every disparity between the infrared imagers, as in a module bent by an impact.
    std::optional<double> misalignmentPx = {};
};

/// Differences of the right infrared imager from the left one, whose rectified intrinsics it shares.
struct RightImager {
    bool isApart = true;     ///< the imager is one baseline to the right of the left one, otherwise at the same place
    double gain = 1;         ///< of its sensor, at the exposure that both share
    double rowOffsetPx = 0;  ///< shift of its image downwards relative to the left one
    /// Shift of its image to the right, by which disparities are reduced.
    double columnOffsetPx = 0;
    /// Whether the column offset also affects the module's own depth. (A small one is compensated by its calibration.)
    bool affectsDepth = false;
};

/// The cameras of a session with their factory records and their true rotations; `frames` is empty.
struct Rig : session::SessionDescription {
    RightImager right;
};

/// Returns a rig drawn from the seed. The platform camera and the right imager are drawn separately, so that requesting
/// them does not change anything else.
Rig drawRig(std::uint64_t seed, const RigOptions& options);

/// Draws the right imager alone.
RightImager drawRightImager(std::uint64_t seed, const RigOptions& options);

/// Returns the actual projection of the right imager: the left imager's rectified intrinsics with its own offsets.
session::Intrinsics rightIntrinsics(const session::Intrinsics& left, const RightImager& right);

}  // namespace fieldcal::synthesis
