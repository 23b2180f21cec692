#pragma once

#include "simulator/kxapi/Faults.h"

#include <string>

namespace kxsim {

/// The environment variables KXSIM_*, as they stand when a device is created.
struct Settings {
    std::string session;          ///< folder of the recording to play, UTF-8; empty: none
    std::string flash;            ///< file of the module's flash, UTF-8; empty: in the device's memory
    double speed = 1;             ///< 1: 60 grabs a second; 0: as fast as it can
    bool platformAbsent = false;  ///< without a recording: the tablet has no rear camera
    Faults faults;
    std::string problem;  ///< what is malformed, one line; such a device does not open
};

Settings readSettings();

/// One line on standard error, whatever the text holds. Any thread.
void report(const std::string& line);
/// The same, unless this process has reported that text before.
void reportOnce(const std::string& line);

}  // namespace kxsim
