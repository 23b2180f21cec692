#pragma once

#include "workflow/State.h"

#include <atomic>
#include <cstdint>

namespace fieldcal {

/// The workflow's state, changed by the user and by the loop from different threads. A change by the user always takes
/// effect; a transition of the loop takes effect only if the user has not acted since the loop took its snapshot.
class WorkflowState {
public:
    /// The state, and the number of user actions so far.
    struct Snapshot {
        State state;
        std::uint32_t userActions;
    };

    Snapshot take() const { return unpack(word_); }
    State state() const { return take().state; }

    /// Sets the state on behalf of the user. Any thread.
    void set(State state) {
        change([state](Snapshot) { return state; });
    }
    /// Records a user action that leaves the state unchanged but must cancel a transition in progress.
    void interrupt() {
        change([](Snapshot now) { return now.state; });
    }

    /// Makes a transition of the loop. Returns false and changes nothing when the user has acted since the snapshot was
    /// taken.
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
