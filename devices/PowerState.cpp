#include "devices/PowerState.h"

namespace fieldcal {

bool sufficesToWrite(const std::optional<PowerState>& power) {
    return !power || power->mains || power->batteryPercent >= kMinBatteryPercent;
}

}  // namespace fieldcal
