#pragma once

#include "workflow/State.h"

#include <atomic>
#include <cstdint>

namespace fieldcal {

/// The workflow's state, which the user and the loop move from different threads. What the user does always counts; the
/// loop's own transition counts only if the user did nothing since the loop looked.
class WorkflowState {
public:
    /// The state, and how often the user had acted.
    struct Snapshot {
        State state;
        std::uint32_t userActions;
    };

    Snapshot take() const { return unpack(word_); }
    State state() const { return take().state; }

    /// The user's. Any thread.
    void set(State state) {
        change([state](Snapshot) { return state; });
    }
    /// An action of the user's that leaves the state as it is, but must win over a transition under way.
    void interrupt() {
        change([](Snapshot now) { return now.state; });
    }

    /// The loop's. False, and nothing happens, when the user has acted since the snapshot was taken.
    bool advance(const Snapshot& from, State to) {
        std::uint64_t expected = pack(from);
        return word_.compare_exchange_strong(expected, pack({to, from.userActions}));
    }

private:
    static std::uint64_t pack(Snapshot snapshot) {
        return (std::uint64_t{snapshot.userActions} << 32) | static_cast<std::uint32_t>(snapshot.state);
    }
    static Snapshot unpack(std::uint64_t word) {
        return {static_cast<State>(static_cast<std::uint32_t>(word)), static_cast<std::uint32_t>(word >> 32)};
    }
    template <typename Next>
    void change(Next next) {
        std::uint64_t word = word_;
        while (!word_.compare_exchange_weak(word, pack({next(unpack(word)), unpack(word).userActions + 1}))) {
        }
    }

    std::atomic<std::uint64_t> word_{0};
};

}  // namespace fieldcal
