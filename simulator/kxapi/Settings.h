#pragma once

#include "simulator/kxapi/Faults.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace kxsim {

enum class PlatformChoice { absent, uncalibrated, calibrated };

/// The images of the right infrared imager: its own, a constant value, or the left image.
enum class RightChoice { real, blank, left };

/// The environment variables KXSIM_*, read when a device is created.
struct Settings {
    std::string session;           ///< folder of the recording to play, UTF-8; empty: a world is rendered
    std::string world = "square";  ///< name of the world
    std::string light = "sun";
    std::uint64_t seed = 1;                                     ///< of the world, its cameras and the hand
    std::optional<std::array<double, 3>> drift, platformDrift;  ///< degrees; if not set, drawn from the seed
    PlatformChoice platform = PlatformChoice::calibrated;  ///< ignored for a recording, which decides by its content
    RightChoice right = RightChoice::real;
    std::string flash;  ///< file of the module's parameter block, UTF-8; empty: the default described in the README
    double speed = 1;   ///< 1: the source's own rate; 0: as fast as possible
    Faults faults;
    std::string problem;  ///< the malformed variable, one line; a device with such settings does not open
};

Settings readSettings();

/// Writes one line on standard error, whatever the text contains. Any thread.
void report(const std::string& line);
/// The same, unless this process has already reported that text.
void reportOnce(const std::string& line);

}  // namespace kxsim
