#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace fieldcal {

/// Limits the render requests from one thread to another: at most one request is pending at a time.
class RenderPacer {
public:
    /// Returns true when no request was pending. The new request is then pending, and the caller must send it.
    bool request() { return !pending_.exchange(true); }
    /// To be called when the request has arrived.
    void arrived() { pending_ = false; }
    /// Waits until the pending request has arrived, or until `close`.
    void wait() const {
        while (pending_ && !closed_)
            std::this_thread::sleep_for(std::chrono::milliseconds(3));
    }
    /// Ends all present and future waits.
    void close() { closed_ = true; }

private:
    std::atomic<bool> pending_{false};
    std::atomic<bool> closed_{false};
};

}  // namespace fieldcal
