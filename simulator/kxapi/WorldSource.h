#pragma once

#include "simulator/kxapi/FrameSource.h"
#include "simulator/kxapi/Settings.h"

namespace kxsim {

/// Whether this build can render worlds. If not, the module needs a recording.
extern const bool kCanRenderWorlds;

/// Opens a hand-held module in the world named by the settings. Returns null with `why` when the world or the light
/// does not exist. At speed 0 the frames are the same for the same seed; otherwise the hand rests until the next
/// keyframe is rendered.
std::unique_ptr<FrameSource> openWorld(const Settings& settings, std::string* why);

}  // namespace kxsim
