#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kxsim {

/// Failures on order: "op:call:status,…" makes the given call of an operation (counted from 1) fail with that library
/// status. Operations are those of `KXAPI.h` and of the rear camera, by name. One that returns a pointer gives null.
class Faults {
public:
    /// Replaces the orders. On a malformed text false, `why`, and no orders.
    bool parse(const std::string& text, std::string* why);

    /// Counts a call; the status with which it must fail, if it must.
    std::optional<std::int32_t> strike(const char* operation);

private:
    struct Order {
        std::string operation;
        std::uint32_t callsLeft;
        std::int32_t status;
    };
    static bool parseOrder(const std::string& text, Order* out, std::string* why);

    std::vector<Order> orders_;
};

}  // namespace kxsim
