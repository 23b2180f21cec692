#pragma once

#include <condition_variable>
#include <mutex>

namespace fieldcal::world {

/// Allows other threads to pause or end a long computation, which checks it between two steps. Any thread.
class Interruption {
public:
    /// Waits while paused; returns false once the computation has to end.
    bool goOn() {
        std::unique_lock<std::mutex> lock(mutex_);
        changed_.wait(lock, [this] { return !paused_ || ended_; });
        return !ended_;
    }
    void pause(bool paused) {
        const std::lock_guard<std::mutex> lock(mutex_);
        paused_ = paused;
        changed_.notify_all();
    }
    /// Ends the computation permanently, even while paused.
    void end() {
        const std::lock_guard<std::mutex> lock(mutex_);
        ended_ = true;
        changed_.notify_all();
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool paused_ = false, ended_ = false;
};

}  // namespace fieldcal::world
