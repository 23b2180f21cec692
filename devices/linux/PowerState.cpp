#include "devices/PowerState.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace fieldcal {
namespace {

std::string wordIn(const std::filesystem::path& file) {
    std::string word;
    std::ifstream(file) >> word;
    return word;
}

/// Returns a battery's charge; none when the folder is not that of a battery of this computer.
std::optional<int> chargeIn(const std::filesystem::path& supply) {
    // Keyboards and pens have batteries, too.
    if (wordIn(supply / "type") != "Battery" || wordIn(supply / "scope") == "Device") return std::nullopt;
    int percent = -1;
    std::ifstream(supply / "capacity") >> percent;
    if (percent < 0) return std::nullopt;
    return percent;
}

}  // namespace

std::optional<PowerState> powerIn(const std::string& folder) {
    std::optional<int> charge;
    bool mains = false;
    std::error_code error;
    for (std::filesystem::directory_iterator supply(folder, error), end; !error && supply != end;
         supply.increment(error)) {
        if (const auto one = chargeIn(supply->path())) charge = std::max(*one, charge.value_or(0));
        mains = mains || wordIn(supply->path() / "online") == "1";
    }
    if (!charge) return std::nullopt;
    return PowerState{mains, *charge};
}

std::optional<PowerState> systemPower() {
    return powerIn("/sys/class/power_supply");
}

}  // namespace fieldcal
