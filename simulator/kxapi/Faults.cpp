#include "simulator/kxapi/Faults.h"

#include "simulator/kxapi/Operations.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <iterator>
#include <sstream>
#include <thread>

namespace kxsim {
namespace {

/// The exit code of a killed process.
constexpr int kKilled = 137;
constexpr const char* kConditions[] = {
    "living-block",         "thread-bound-status", "wrong-size",           "meddling-companion", "padded-rows",
    "swapped-imagers",      "lower-right-rows",    "depth-in-centimetres", "corner-pixels",      "transposed-rotation",
    "opposite-translation", "metre-translation",   "other-rear-lens",      "displaced-colour"};
constexpr const char* kStreams[] = {"depth", "left", "right", "third", "platform"};

enum class Number { none, maybe, must };
enum class For { all, acting, blocks, readBlock };

struct Kind {
    const char* name;
    FaultKind kind;
    Number number;
    For operations;
};

constexpr Kind kKinds[] = {
    {"done", FaultKind::done, Number::must, For::acting},
    {"gone", FaultKind::gone, Number::none, For::all},
    {"gone-after", FaultKind::goneAfter, Number::none, For::acting},
    {"die", FaultKind::die, Number::none, For::all},
    {"die-after", FaultKind::dieAfter, Number::none, For::acting},
    {"hang", FaultKind::hang, Number::none, For::all},
    {"late", FaultKind::late, Number::must, For::all},
    {"lie", FaultKind::lie, Number::none, For::acting},
    {"old", FaultKind::old, Number::none, For::readBlock},
    {"garble", FaultKind::garble, Number::maybe, For::blocks},
};

/// Parses the whole text as a number that is not negative.
bool takeNumber(const std::string& text, std::uint32_t* out) {
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

bool fits(For operations, const std::string& operation) {
    switch (operations) {
        case For::acting:
            return operationKind(operation) == OperationKind::acts;
        case For::blocks:
            return operation == "writeRectParameters" || operation == "rectParameters";
        case For::readBlock:
            return operation == "rectParameters";
        case For::all:
            break;
    }
    return true;
}

/// Returns null on success, otherwise what is wrong with the text.
const char* parseKind(const std::string& text, const std::string& operation, Fault* out) {
    if (takeNumber(text, &out->number)) return nullptr;
    const std::size_t plus = text.find('+');
    const std::string name = text.substr(0, plus);
    const auto* kind =
        std::find_if(std::begin(kKinds), std::end(kKinds), [&](const Kind& k) { return k.name == name; });
    if (kind == std::end(kKinds)) return "a status or one of the README's kinds expected";
    out->kind = kind->kind;
    if (!fits(kind->operations, operation)) return "not with this operation";
    const bool hasNumber = plus != std::string::npos;
    if (kind->number != Number::maybe && hasNumber != (kind->number == Number::must)) {
        return hasNumber ? "no number expected" : "a number expected after a plus sign";
    }
    return hasNumber && !takeNumber(text.substr(plus + 1), &out->number) ? "a number expected after the plus sign"
                                                                         : nullptr;
}

template <typename Names>
bool contains(const Names& names, const std::string& name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

const char* parseStreamFault(const std::string& text, StreamFault* out) {
    const std::size_t plus = text.find('+');
    const std::string name = text.substr(0, plus);
    const bool hasNumber = plus != std::string::npos;
    if (name == "drop") {
        out->kind = StreamFaultKind::drop;
    } else if (name == "freeze") {
        out->kind = StreamFaultKind::freeze;
    } else if (name == "late" && hasNumber) {
        out->kind = StreamFaultKind::late;
    } else {
        return "drop, freeze or late+SETS expected";
    }
    const bool good = !hasNumber || takeNumber(text.substr(plus + 1), &out->number);
    return good ? nullptr : "a number of frame sets expected after the plus sign";
}

}  // namespace

const char* Faults::parseOrder(const std::string& text) {
    const std::vector<std::string> parts = split(text, ':');
    if (parts.size() != 3) return "operation:call:kind expected";
    const bool isStream = contains(kStreams, parts[0]);
    if (!isStream && !operationKind(parts[0])) return "no such operation";
    std::uint32_t number = 0;
    if (!takeNumber(parts[1], &number) || number == 0) return "calls are counted from 1";
    if (isStream) {
        StreamOrder& order = streamOrders_.emplace_back(StreamOrder{parts[0], number, {}});
        return parseStreamFault(parts[2], &order.fault);
    }
    Order& order = orders_.emplace_back(Order{parts[0], number, {}});
    return parseKind(parts[2], parts[0], &order.fault);
}

bool Faults::take(const std::string& text, std::string* why) {
    if (contains(kConditions, text)) {
        conditions_.insert(text);
        return true;
    }
    const char* wrong = parseOrder(text);
    if (wrong != nullptr) *why = "KXSIM_FAULTS: \"" + text + "\": " + wrong;
    return wrong == nullptr;
}

bool Faults::parse(const std::string& text, std::string* why) {
    *this = {};
    const std::vector<std::string> parts = split(text, ',');
    const bool good = std::all_of(parts.begin(), parts.end(), [&](const std::string& part) { return take(part, why); });
    if (!good) *this = {};
    return good;
}

std::optional<Fault> Faults::strike(const char* operation) {
    std::optional<Fault> fault;
    for (Order& order : orders_) {
        if (order.callsLeft > 0 && order.operation == operation && --order.callsLeft == 0) fault = order.fault;
    }
    return fault;
}

std::optional<StreamFault> Faults::inStream(const std::string& stream, std::uint64_t set) const {
    for (const StreamOrder& order : streamOrders_) {
        const bool lasts = order.fault.kind == StreamFaultKind::late || order.fault.number == 0 ||
                           set < std::uint64_t{order.firstSet} + order.fault.number;
        if (order.stream == stream && set >= order.firstSet && lasts) return order.fault;
    }
    return std::nullopt;
}

void beginFault(const Fault& fault) {
    if (fault.kind == FaultKind::die) std::_Exit(kKilled);
    if (fault.kind == FaultKind::late) std::this_thread::sleep_for(std::chrono::milliseconds(fault.number));
    while (fault.kind == FaultKind::hang)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

void endFault(const Fault& fault) {
    if (fault.kind == FaultKind::dieAfter) std::_Exit(kKilled);
}

bool isDoneUnder(FaultKind kind) {
    switch (kind) {
        case FaultKind::done:
        case FaultKind::goneAfter:
        case FaultKind::dieAfter:
        case FaultKind::late:
        case FaultKind::old:
        case FaultKind::garble:
            return true;
        default:
            return false;
    }
}

}  // namespace kxsim
