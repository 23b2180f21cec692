#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kxsim {

enum class FaultKind {
    status,     ///< the call fails with a status of the library
    done,       ///< the same, although the operation is carried out
    gone,       ///< this call and all that follow fail with status 5
    goneAfter,  ///< the same, after the operation is carried out
    die,        ///< the process ends
    dieAfter,   ///< the same, after the operation is carried out
    hang,       ///< the call does not return
    late,       ///< the call is carried out with a delay
    lie,        ///< the call reports success without doing anything
    old,        ///< the block before the last commit is read
    garble,     ///< one bit of the block is flipped
};

struct Fault {
    FaultKind kind = FaultKind::status;
    std::uint32_t number = 0;  ///< the status, the affected byte, or milliseconds
};

enum class StreamFaultKind { drop, freeze, late };

struct StreamFault {
    StreamFaultKind kind = StreamFaultKind::drop;
    std::uint32_t number = 0;  ///< frame sets: the delay, or the duration (0: unlimited)
};

/// Injected faults, as listed in the README: "op:call:kind" makes the given call of an operation of `Operations.h`
/// (counted from 1) fail, "stream:set:kind" affects a stream's images from that frame set on, and a single word is a
/// permanent condition.
class Faults {
public:
    /// Replaces all faults. On a malformed text returns false with `why`, and has no faults.
    bool parse(const std::string& text, std::string* why);

    /// Counts a call and returns its fault, if any.
    std::optional<Fault> strike(const char* operation);

    /// Returns the fault of a stream in a frame set, counted from 1.
    std::optional<StreamFault> inStream(const std::string& stream, std::uint64_t set) const;

    /// Whether a condition of the README is in force.
    bool holds(const char* condition) const { return conditions_.count(condition) > 0; }
    /// The module changes a count and a checksum of its own in its block with each commit.
    bool livingBlock() const { return conditions_.count("living-block") > 0; }
    /// The status of a failed call is reported only to the thread that made it.
    bool threadBoundStatus() const { return conditions_.count("thread-bound-status") > 0; }
    /// The infrared calibration is for images of another size.
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

/// Carries out the part of a fault before the call: waits, without or with a limit, or ends the process.
void beginFault(const Fault& fault);
/// Ends the process if the fault does so after the call.
void endFault(const Fault& fault);
/// Returns whether the operation is carried out despite the fault.
bool isDoneUnder(FaultKind kind);

}  // namespace kxsim
