#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace fieldcal {

/// Between the thread that has something to show and the one that shows it: at most one request is on its way.
class RenderPacer {
public:
    /// True: no request was on its way, now this one is, and the caller sends it.
    bool request() { return !pending_.exchange(true); }
    /// The request has arrived.
    void arrived() { pending_ = false; }
    /// Waits until it has, or until `close`.
    void wait() const {
        while (pending_ && !closed_)
            std::this_thread::sleep_for(std::chrono::milliseconds(3));
    }
    /// Nobody waits any more.
    void close() { closed_ = true; }

private:
    std::atomic<bool> pending_{false};
    std::atomic<bool> closed_{false};
};

}  // namespace fieldcal
