#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kxsim {

enum class FaultKind {
    status,     ///< the call fails with a status of the library
    done,       ///< the same, though what was asked for is done
    gone,       ///< this call and all that follow fail with status 5
    goneAfter,  ///< the same, after what was asked for is done
    die,        ///< the process ends
    dieAfter,   ///< the same, after what was asked for is done
    hang,       ///< the call does not return
    late,       ///< the call does what it should, but late
    lie,        ///< the call says that it succeeded and does nothing
    old,        ///< the block before the last commit is read
    garble,     ///< one bit of the block is wrong
};

struct Fault {
    FaultKind kind = FaultKind::status;
    std::uint32_t number = 0;  ///< the status, the byte that is hit, or milliseconds
};

/// Failures on order, as the README lists them: "op:call:kind" makes the given call of an operation of `Operations.h`
/// (counted from 1) fail, and a single word is a condition that holds all the time.
class Faults {
public:
    /// Replaces the orders. On a malformed text false, `why`, and no orders.
    bool parse(const std::string& text, std::string* why);

    /// Counts a call; what must happen to it, if anything.
    std::optional<Fault> strike(const char* operation);

    /// The module's own count and checksum in its block change with each commit.
    bool livingBlock() const { return conditions_.count("living-block") > 0; }

private:
    struct Order {
        std::string operation;
        std::uint32_t callsLeft = 0;
        Fault fault;
    };
    static const char* parseOrder(const std::string& text, Order* out);
    bool take(const std::string& text, std::string* why);

    std::vector<Order> orders_;
    std::set<std::string> conditions_;
};

/// What a fault does before the call: waits, for ever or for a while, or ends the process.
void beginFault(const Fault& fault);
/// Ends the process if the fault does that after the call.
void endFault(const Fault& fault);
/// Whether what was asked for is done under the fault.
bool isDoneUnder(FaultKind kind);

}  // namespace kxsim
