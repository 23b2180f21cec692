#pragma once

#include <chrono>

namespace kxsim {

/// When the next frame set is there: at the source's rate at speed 1, always at speed 0. A caller that comes late gets
/// its frame at once and moves the beat; frames are never skipped, so that playing does not depend on timing.
class Pace {
public:
    void start(double framesPerSecond, double speed);

    /// Whether the next frame set is there; with `wait`, sleeps until it is.
    bool frameDue(bool wait);

private:
    using Clock = std::chrono::steady_clock;
    Clock::duration period_{};
    Clock::time_point due_;
};

}  // namespace kxsim
