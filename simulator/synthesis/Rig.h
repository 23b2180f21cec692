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
    /// Pixels by which every disparity between the infrared imagers is too large, as after a blow that bent the module.
    std::optional<double> misalignmentPx = {};
};

/// How the right infrared imager differs from the left one, whose rectified intrinsics it shares.
struct RightImager {
    bool isApart = true;     ///< it stands a baseline to the right; else at the left one's place
    double gain = 1;         ///< of its sensor, at the exposure that both share
    double rowOffsetPx = 0;  ///< what it sees lies so much lower in its picture than in the left one
    /// What it sees lies so much further to the right than its place tells: disparities are smaller by as much.
    double columnOffsetPx = 0;
    /// Whether the module's own depth suffers from the column offset. (Its calibration makes up for a small one.)
    bool deceivesDepth = false;
};

/// The cameras of a session with their factory records and their true rotations; `frames` is empty.
struct Rig : session::SessionDescription {
    RightImager right;
};

/// A rig drawn from the seed. What belongs to the platform camera and to the right imager is drawn apart: asking for
/// it changes nothing else.
Rig drawRig(std::uint64_t seed, const RigWishes& wishes);

/// The right imager alone.
RightImager drawRightImager(std::uint64_t seed, const RigWishes& wishes);

/// How it really projects: the left imager's rectified intrinsics with its own offsets.
session::Intrinsics rightIntrinsics(const session::Intrinsics& left, const RightImager& right);

}  // namespace fieldcal::synthesis
