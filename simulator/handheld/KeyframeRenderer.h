#pragma once

#include "simulator/handheld/Hand.h"
#include "simulator/handheld/TurnedView.h"
#include "simulator/synthesis/StillSettings.h"
#include "simulator/world/Cameras.h"
#include "simulator/world/Worlds.h"

#include <memory>
#include <string>

namespace fieldcal::handheld {

/// The views from one pose of the hand: one in a static world, several at different times in a moving one.
struct Keyframe {
    Rest rest;
    std::vector<RenderedView> moments;
    synthesis::StillSettings settings;  ///< exposure settings in full light
};

/// Returns the images of a keyframe in full light without tremor. The same `noise` gives the same bytes.
session::FrameImages takeStill(const Keyframe& seen, std::uint64_t noise);

/// Renders the keyframes of a hand that moves the cameras through a world. One thread.
class KeyframeRenderer {
public:
    /// Builds the world, one of `world::worldNames()`, which takes about a second. `rig` must carry the true rotations.
    KeyframeRenderer(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig);

    /// Renders a keyframe by its number, counted from 0, on all processors. Once `interruption` (may be null) has
    /// ended, it returns soon with an incomplete keyframe.
    std::shared_ptr<const Keyframe> render(int number, bool withPlatform, world::Interruption* interruption = nullptr);

private:
    std::uint64_t seed_;
    std::unique_ptr<world::Stage> stage_;
    world::Cameras cameras_;
    Hand hand_;
};

}  // namespace fieldcal::handheld
