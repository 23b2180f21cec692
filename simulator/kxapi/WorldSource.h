#pragma once

#include "simulator/kxapi/FrameSource.h"
#include "simulator/kxapi/Settings.h"

namespace kxsim {

/// Whether this build can render worlds. Where it cannot, the module needs a recording.
extern const bool canRenderWorlds;

/// A module in a hand in a world, as the settings say. Null and `why` (one line) when there is no such world or light.
/// At speed 0 its frames are the same for the same seed; else the hand rests until the next view is rendered.
std::unique_ptr<FrameSource> openWorld(const Settings& settings, std::string* why);

}  // namespace kxsim
