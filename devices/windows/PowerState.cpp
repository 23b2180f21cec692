#include "devices/PowerState.h"

#include <windows.h>

namespace fieldcal {

std::optional<PowerState> systemPower() {
    constexpr BYTE kOffline = 0, kNoBattery = 128, kUnknown = 255;
    SYSTEM_POWER_STATUS status{};
    if (!GetSystemPowerStatus(&status) || status.BatteryLifePercent == kUnknown || status.BatteryFlag == kUnknown ||
        (status.BatteryFlag & kNoBattery) != 0) {
        return std::nullopt;
    }
    return PowerState{status.ACLineStatus != kOffline, status.BatteryLifePercent};
}

}  // namespace fieldcal
