#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace fieldcal {

/// Makes calls that may never return. They run one after the other on a thread of this object's own; the caller waits,
/// but not for ever. A call that is given up keeps its thread and whatever it captured until it returns, if it ever
/// does; so a call captures shared or copied values only, and after it every further call is refused. One caller's
/// thread.
class WatchedCalls {
public:
    enum class Ending {
        Returned,
        Stopped,  ///< given up because `*stop` became true
        Overdue   ///< given up after `limit`, or refused because an earlier one was given up
    };

    WatchedCalls();
    ~WatchedCalls();
    WatchedCalls(const WatchedCalls&) = delete;
    WatchedCalls& operator=(const WatchedCalls&) = delete;

    /// `stop` may be null. A call gets a third of a second to return after the stop.
    Ending run(std::function<void()> call, std::chrono::milliseconds limit, const std::atomic<bool>* stop);

private:
    struct Worker;

    std::shared_ptr<Worker> worker_;  ///< null before the first call, and after one was given up
    bool givenUp_ = false;
};

/// Lets go of something whose end may take for ever, on a thread of its own: after `limit`, or much earlier when
/// somebody waits (`inHaste`), it is left to that thread.
void letGo(std::shared_ptr<void> last, std::chrono::milliseconds limit, bool inHaste);

}  // namespace fieldcal
