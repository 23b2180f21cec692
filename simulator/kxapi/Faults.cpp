#include "simulator/kxapi/Faults.h"

#include "simulator/kxapi/Operations.h"

#include <charconv>
#include <chrono>
#include <sstream>
#include <thread>

namespace kxsim {
namespace {

constexpr const char* kFlash = "flash";

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

/// Null, or what is wrong with the text.
const char* parseFlashFault(const std::string& text, Fault* out) {
    const std::size_t plus = text.find('+');
    const std::string kind = text.substr(0, plus);
    const bool countsBytes = kind == "powercut" || kind == "garble";
    const bool bytesFit = plus == std::string::npos || (countsBytes && take(text.substr(plus + 1), &out->bytes));
    if (kind == "powercut") {
        out->kind = FaultKind::powercut;
    } else if (kind == "garble") {
        out->kind = FaultKind::garble;
    } else if (kind == "corrupt") {
        out->kind = FaultKind::corrupt;
    } else if (kind == "die") {
        out->kind = FaultKind::die;
    } else {
        return "powercut, powercut+BYTES, corrupt, garble, garble+BYTE or die expected";
    }
    return bytesFit ? nullptr : "a number of bytes expected after powercut+ or garble+";
}

const char* parseCallFault(const std::string& text, OperationKind operation, Fault* out) {
    if (text == "gone") {
        out->kind = FaultKind::gone;
    } else if (text == "hang") {
        out->kind = FaultKind::hang;
    } else if (text == "lie") {
        out->kind = FaultKind::lie;
        return operation == OperationKind::acts ? nullptr : "an operation that answers cannot lie";
    } else if (!take(text, &out->status) || out->status < 0) {
        return "the status must be a whole number, at least 0, or gone, hang or lie";
    }
    return nullptr;
}

}  // namespace

bool Faults::parseOrder(const std::string& text, Order* out, std::string* why) {
    const std::vector<std::string> parts = split(text, ':');
    const bool complete = parts.size() == 3;
    const std::optional<OperationKind> operation = complete ? operationKind(parts[0]) : std::nullopt;
    const char* wrong = nullptr;
    if (!complete) {
        wrong = "operation:call:status expected";
    } else if (!operation && parts[0] != kFlash) {
        wrong = "no such operation";
    } else if (!take(parts[1], &out->callsLeft) || out->callsLeft == 0) {
        wrong = "calls are counted from 1";
    } else {
        wrong = operation ? parseCallFault(parts[2], *operation, &out->fault) : parseFlashFault(parts[2], &out->fault);
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

std::optional<Fault> Faults::strike(const char* operation) {
    std::optional<Fault> fault;
    for (Order& order : orders_) {
        if (order.callsLeft > 0 && order.operation == operation && --order.callsLeft == 0) fault = order.fault;
    }
    return fault;
}

void hang() {
    for (;;)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

}  // namespace kxsim
