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

enum class StreamFaultKind { drop, freeze, late };

struct StreamFault {
    StreamFaultKind kind = StreamFaultKind::drop;
    std::uint32_t number = 0;  ///< frame sets: by which it is late, or how long it lasts (0: for ever)
};

/// Failures on order, as the README lists them: "op:call:kind" makes the given call of an operation of `Operations.h`
/// (counted from 1) fail, "stream:set:kind" holds a stream's pictures back from that frame set on, and a single word is
/// a condition that holds all the time.
class Faults {
public:
    /// Replaces the orders. On a malformed text false, `why`, and no orders.
    bool parse(const std::string& text, std::string* why);

    /// Counts a call; what must happen to it, if anything.
    std::optional<Fault> strike(const char* operation);

    /// What happens to a stream in a frame set, counted from 1.
    std::optional<StreamFault> inStream(const std::string& stream, std::uint64_t set) const;

    /// Whether a condition of the README holds.
    bool holds(const char* condition) const { return conditions_.count(condition) > 0; }
    /// The module's own count and checksum in its block change with each commit.
    bool livingBlock() const { return conditions_.count("living-block") > 0; }
    /// A failed call's status is told to the thread that made it, and to no other.
    bool threadBoundStatus() const { return conditions_.count("thread-bound-status") > 0; }
    /// The infrared calibration is for pictures of another size.
    bool wrongSize() const { return conditions_.count("wrong-size") > 0; }

private:
    struct Order {
        std::string operation;
        std::uint32_t callsLeft = 0;
        Fault fault;
    };
    struct StreamOrder {
        std::string stream;
        std::uint32_t firstSet = 0;
        StreamFault fault;
    };
    const char* parseOrder(const std::string& text);
    bool take(const std::string& text, std::string* why);

    std::vector<Order> orders_;
    std::vector<StreamOrder> streamOrders_;
    std::set<std::string> conditions_;
};

/// What a fault does before the call: waits, for ever or for a while, or ends the process.
void beginFault(const Fault& fault);
/// Ends the process if the fault does that after the call.
void endFault(const Fault& fault);
/// Whether what was asked for is done under the fault.
bool isDoneUnder(FaultKind kind);

}  // namespace kxsim
