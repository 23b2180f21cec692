#pragma once

#include "simulator/handheld/Hand.h"
#include "simulator/handheld/TurnedView.h"
#include "simulator/synthesis/StillSettings.h"
#include "simulator/world/Cameras.h"
#include "simulator/world/Worlds.h"

#include <memory>
#include <string>

namespace fieldcal::handheld {

/// What is seen where the hand rests: once in a world that stands still, at several moments in one that moves.
struct RestingView {
    Rest rest;
    std::vector<SeenView> moments;
    synthesis::StillSettings settings;  ///< how the exposure comes out in full light
};

/// Its pictures in full light, the hand quite still. Equal `noise`, equal bytes.
session::FramePictures takeStill(const RestingView& seen, std::uint64_t noise);

/// A world, the cameras and the hand that leads them: renders what is seen where the hand rests. One thread.
class Studio {
public:
    /// Builds the world, one of `world::worldNames()`; takes a second or so. `rig` must carry the true rotations.
    Studio(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig);

    /// Views are counted from 0. All processors work on one. Once `interruption` (may be null) has ended, it returns
    /// soon, and the view is worth nothing.
    std::shared_ptr<const RestingView> make(int number, bool withPlatform, world::Interruption* interruption = nullptr);

private:
    std::uint64_t seed_;
    std::unique_ptr<world::Stage> stage_;
    world::Cameras cameras_;
    Hand hand_;
};

}  // namespace fieldcal::handheld
