#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace kxsim {

/// When the next frame set is there: at the source's rate at speed 1, always at speed 0. A caller that comes late gets
/// its frame at once and moves the beat; frames are never skipped, so that playing does not depend on timing.
class Pace {
public:
    void start(double framesPerSecond, double speed) {
        const std::chrono::duration<double> period(speed > 0 ? 1 / (framesPerSecond * speed) : 0);
        period_ = std::chrono::duration_cast<Clock::duration>(period);
        due_ = Clock::now();
    }

    /// Whether the next frame set is there; with `wait`, sleeps until it is.
    bool frameDue(bool wait) {
        if (period_ == Clock::duration::zero()) return true;
        const Clock::time_point now = Clock::now();
        if (now < due_) {
            if (!wait) return false;
            std::this_thread::sleep_until(due_);
        }
        due_ = std::max(due_ + period_, now);
        return true;
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::duration period_{};
    Clock::time_point due_;
};

}  // namespace kxsim
