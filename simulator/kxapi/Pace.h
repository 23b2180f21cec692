#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace kxsim {

/// Paces frame sets at the source's rate times the speed; at speed 0 they are always due. A late caller gets its frame
/// at once and shifts the schedule. Frames are never skipped, so that playback does not depend on timing.
class Pace {
public:
    void start(double framesPerSecond, double speed) {
        const std::chrono::duration<double> period(speed > 0 ? 1 / (framesPerSecond * speed) : 0);
        period_ = std::chrono::duration_cast<Clock::duration>(period);
        due_ = Clock::now();
    }

    /// Returns whether the next frame set is due; with `wait`, sleeps until it is.
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
