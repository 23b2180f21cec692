#pragma once

#include "simulator/kxapi/Faults.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace kxsim {

enum class PlatformChoice { absent, uncalibrated, calibrated };

/// What the right infrared imager delivers: its own picture, one value, or the left picture.
enum class RightChoice { real, blank, left };

/// The environment variables KXSIM_*, as they stand when a device is created.
struct Settings {
    std::string session;           ///< folder of the recording to play, UTF-8; empty: a world is rendered
    std::string world = "square";  ///< which one
    std::string light = "sun";
    std::uint64_t seed = 1;                                     ///< of the world, its cameras and the hand
    std::optional<std::array<double, 3>> drift, platformDrift;  ///< degrees; without: from the seed
    PlatformChoice platform = PlatformChoice::calibrated;       ///< a recording decides by itself
    RightChoice right = RightChoice::real;
    std::string flash;  ///< file of the module's parameter block, UTF-8; empty: where the README says
    double speed = 1;   ///< 1: the source's own rate; 0: as fast as it can
    Faults faults;
    std::string problem;  ///< what is malformed, one line; such a device does not open
};

Settings readSettings();

/// One line on standard error, whatever the text holds. Any thread.
void report(const std::string& line);
/// The same, unless this process has reported that text before.
void reportOnce(const std::string& line);

}  // namespace kxsim
