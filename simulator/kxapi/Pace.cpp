#include "simulator/kxapi/Pace.h"

#include <algorithm>
#include <thread>

namespace kxsim {

void Pace::start(double framesPerSecond, double speed) {
    const std::chrono::duration<double> period(speed > 0 ? 1 / (framesPerSecond * speed) : 0);
    period_ = std::chrono::duration_cast<Clock::duration>(period);
    due_ = Clock::now();
}

bool Pace::frameDue(bool wait) {
    if (period_ == Clock::duration::zero()) return true;
    const Clock::time_point now = Clock::now();
    if (now < due_) {
        if (!wait) return false;
        std::this_thread::sleep_until(due_);
    }
    due_ = std::max(due_ + period_, now);
    return true;
}

}  // namespace kxsim
