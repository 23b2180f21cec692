#include "simulator/kxapi/StatusText.h"

#include <iterator>

namespace kxsim {
namespace {

constexpr const char* kTexts[] = {"No error",       "Operation failed",   "Invalid argument",    "Not supported",
                                  "Not calibrated", "No device",          "Device error",        "Device in use",
                                  "Timeout",        "Data not available", "Communication error", "Firmware too old",
                                  "Out of memory"};

}

const char* statusText(std::int32_t status) {
    const bool known = status >= 0 && status < static_cast<std::int32_t>(std::size(kTexts));
    return known ? kTexts[status] : "Unknown status";
}

}  // namespace kxsim
