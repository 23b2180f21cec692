#pragma once

#include <optional>
#include <string>

namespace fieldcal {

/// The supply of a computer with a battery.
struct PowerState {
    bool mains = true;
    int batteryPercent = 100;
};

/// The charge below which no write into the module's flash begins without mains.
constexpr int kMinBatteryPercent = 15;

/// Returns whether the supply is expected to last for a write into the flash. Without knowledge of it, it is.
inline bool sufficesToWrite(const std::optional<PowerState>& power) {
    return !power || power->mains || power->batteryPercent >= kMinBatteryPercent;
}

/// Returns this system's supply; none without a battery, or when the system does not report its state. Any thread.
std::optional<PowerState> systemPower();

#ifndef _WIN32
/// The same, from a folder with one subfolder for each supply and battery.
std::optional<PowerState> powerIn(const std::string& folder);
#endif

}  // namespace fieldcal
