#pragma once

#include "simulator/synthesis/Random.h"
#include "simulator/world/RenderedImage.h"

#include <vector>

namespace fieldcal::handheld {

/// A pose at which the hand rests, and the durations in frames of 1/30 s.
struct Rest {
    world::Pose pose;
    int heldFrames = 0;
    int turnFrames = 0;  ///< duration of the turn to the next pose
};

/// The poses that a user would choose one after another. Each is turned by 10 to 30 degrees from the previous one,
/// pitched and rolled slightly, and moved by some centimetres. The speed of a turn is that of a human wrist.
class Hand {
public:
    Hand(std::uint64_t seed, double lowestPitchDeg, double highestPitchDeg);

    /// Returns a pose by its number, counted from 0. One thread.
    const Rest& rest(int number);

private:
    world::Pose drawPose();

    synthesis::Random random_;
    double lowestPitchDeg_, highestPitchDeg_;
    double yawDeg_, turnDeg_ = 0;
    std::vector<Rest> rests_;
};

/// Returns the pose between two poses at `way` from 0 to 1, with the smooth start and end of limb movements (minimum
/// jerk; Flash and Hogan 1985). Outside 0 … 1 it is the nearer end.
world::Pose poseBetween(const world::Pose& from, const world::Pose& to, double way);

/// The exposure of colour starts this much later than that of infrared.
inline constexpr double kColourLagSeconds = 0.008;
inline constexpr double kFramesPerSecond = 30;

/// The tremor of a resting hand: a small rotation that repeats after `kTremorFrames` frames.
inline constexpr int kTremorFrames = 6;
cv::Matx33d tremor(std::uint64_t seed, int rest, double frame);

}  // namespace fieldcal::handheld
