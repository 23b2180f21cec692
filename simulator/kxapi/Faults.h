#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kxsim {

enum class FaultKind {
    status,    ///< the call fails with a status of the library
    gone,      ///< this call and all that follow fail with status 5
    hang,      ///< the call does not return
    lie,       ///< the call says that it succeeded and does nothing
    powercut,  ///< the module loses power in the middle of a write step, and is gone
    corrupt,   ///< one bit of a write step arrives wrong in the cells; the checksum shows it
    garble,    ///< one bit of a write step is wrong before the checksum is taken; nothing shows it
    die,       ///< the whole tablet loses power in the middle of a write step
};

struct Fault {
    FaultKind kind = FaultKind::status;
    std::int32_t status = 0;  ///< `status`
    std::size_t bytes = 0;    ///< `powercut`: of the step, written before it; `garble`: the byte it hits
};

/// Failures on order: "op:call:kind,…" makes the given call of an operation (counted from 1) fail. Operations are those
/// of `Operations.h`, with a status or one of `gone`, `hang` and, where nothing is answered, `lie`; and `flash`,
/// counted by write steps, with `powercut`, `powercut+K`, `corrupt`, `garble`, `garble+K` or `die`.
class Faults {
public:
    /// Replaces the orders. On a malformed text false, `why`, and no orders.
    bool parse(const std::string& text, std::string* why);

    /// Counts a call (or a write step, "flash"); what must happen to it, if anything.
    std::optional<Fault> strike(const char* operation);

private:
    struct Order {
        std::string operation;
        std::uint32_t callsLeft = 0;
        Fault fault;
    };
    static bool parseOrder(const std::string& text, Order* out, std::string* why);

    std::vector<Order> orders_;
};

/// Sleeps for ever.
[[noreturn]] void hang();

}  // namespace kxsim
