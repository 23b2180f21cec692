#pragma once

#include "simulator/kxapi/FrameSource.h"
#include "simulator/kxapi/Settings.h"

namespace kxsim {

/// Whether there is anything to show: a recording, or a world where this build can render one.
bool hasSource(const Settings& settings);

/// The recording or the world that the settings name. Null and `why` (one line) when something is wrong with it.
std::unique_ptr<FrameSource> openSource(const Settings& settings, std::string* why);

/// Where the module's parameter block lives: as the settings say; else, for a rendered module, a file of its own in the
/// user's data folder; else nowhere (empty).
std::string blockFile(const Settings& settings, std::uint32_t serial);

}  // namespace kxsim
