#include "simulator/kxapi/Faults.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <sstream>
#include <string_view>

namespace kxsim {
namespace {

constexpr std::string_view kOperations[] = {
    "openDevice", "initDevice", "firmwareVersionText", "softwareVersionText", "serialNumber", "hardwareControl",
    "thirdCamera", "emitterControl", "setDepthStreamMode", "setDepthEnabled", "depthEnabled", "setLeftEnabled",
    "leftEnabled", "setRightEnabled", "rightEnabled", "setStreamOption", "startCapture", "stopCapture", "grab",
    "depthImage", "leftImage", "rightImage", "calibrationValid", "rectifiedLRIntrinsics", "zIntrinsics",
    "rectParameters", "platformCamera", "privateInterface", "resumeDevice",
    // hardware control
    "setAutoExposure", "setGain", "setExposure", "setHardwareOption",
    // third camera
    "setThirdStreamMode", "setThirdEnabled", "thirdEnabled", "thirdImage", "rectifiedThirdIntrinsics",
    "zToThirdExtrinsics",
    // emitter
    "setEmitter",
    // platform camera
    "setPlatformMode", "nonRectifiedIntrinsics", "rectifiedIntrinsics", "rectificationRotation",
    "zToPlatformExtrinsics",
    // rear camera
    "openCamera", "setAutoFocus", "setFocus", "setupStream"};

bool isOperation(const std::string& name) {
    return std::find(std::begin(kOperations), std::end(kOperations), name) != std::end(kOperations);
}

/// The whole text as a number.
template <typename Number>
bool take(const std::string& text, Number* out) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, *out);
    return result.ec == std::errc() && result.ptr == end;
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> out;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        out.push_back(part);
    return out;
}

}  // namespace

bool Faults::parseOrder(const std::string& text, Order* out, std::string* why) {
    const std::vector<std::string> parts = split(text, ':');
    const char* wrong = nullptr;
    if (parts.size() != 3) {
        wrong = "operation:call:status expected";
    } else if (!isOperation(parts[0])) {
        wrong = "no such operation";
    } else if (!take(parts[1], &out->callsLeft) || out->callsLeft == 0) {
        wrong = "calls are counted from 1";
    } else if (!take(parts[2], &out->status) || out->status < 0) {
        wrong = "the status must be a whole number, at least 0";
    }
    if (wrong == nullptr) {
        out->operation = parts[0];
    } else {
        *why = "KXSIM_FAULTS: \"" + text + "\": " + wrong;
    }
    return wrong == nullptr;
}

bool Faults::parse(const std::string& text, std::string* why) {
    orders_.clear();
    for (const std::string& part : split(text, ',')) {
        Order order;
        if (!parseOrder(part, &order, why)) {
            orders_.clear();
            return false;
        }
        orders_.push_back(order);
    }
    return true;
}

std::optional<std::int32_t> Faults::strike(const char* operation) {
    std::optional<std::int32_t> status;
    for (Order& order : orders_) {
        if (order.callsLeft > 0 && order.operation == operation && --order.callsLeft == 0) status = order.status;
    }
    return status;
}

}  // namespace kxsim
