#pragma once

#include "simulator/synthesis/Random.h"
#include "simulator/world/Picture.h"

#include <vector>

namespace fieldcal::handheld {

/// A view at which the hand rests, and how long it takes to leave it. Frames are 1/30 s.
struct Rest {
    world::Pose pose;
    int heldFrames = 0;
    int turnFrames = 0;  ///< from this view to the next
};

/// The views that a person would take one after another: each turned on by 10 to 30 degrees, looking a little up or
/// down, the tablet tilted a little and moved by some centimetres. The way on is as quick as a wrist likes it.
class Hand {
public:
    Hand(std::uint64_t seed, double lowestPitchDeg, double highestPitchDeg);

    /// Views are counted from 0. One thread.
    const Rest& rest(int number);

private:
    world::Pose drawPose();

    synthesis::Random random_;
    double lowestPitchDeg_, highestPitchDeg_;
    double yawDeg_, turnDeg_ = 0;
    std::vector<Rest> rests_;
};

/// The pose on the way between two views, `way` from 0 to 1: with a soft start and a soft end, as limbs move
/// (minimum jerk; Flash and Hogan 1985). Outside 0 … 1 it stays at the ends.
world::Pose poseBetween(const world::Pose& from, const world::Pose& to, double way);

/// Colour is exposed so much later than infrared.
inline constexpr double colourLagSeconds = 0.008;
inline constexpr double framesPerSecond = 30;

/// How a hand that holds still trembles: a small rotation that repeats after `tremorFrames` frames.
inline constexpr int tremorFrames = 6;
cv::Matx33d tremor(std::uint64_t seed, int rest, double frame);

}  // namespace fieldcal::handheld
