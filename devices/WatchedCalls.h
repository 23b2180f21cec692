#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace fieldcal {

/// Makes calls that may never return. Calls run one after the other on a thread of this object, and the caller waits
/// for a limited time. An abandoned call keeps its thread and everything it captured until it returns, if ever; it must
/// therefore capture shared or copied values only. After an abandoned call, every further call is refused. To be used
/// from one thread.
class WatchedCalls {
public:
    enum class Ending {
        Returned,
        Stopped,  ///< abandoned because `*stop` became true
        Overdue   ///< abandoned after `limit`, or refused because an earlier call was abandoned
    };

    WatchedCalls();
    ~WatchedCalls();
    WatchedCalls(const WatchedCalls&) = delete;
    WatchedCalls& operator=(const WatchedCalls&) = delete;

    /// `stop` may be null. After a stop, a call has a third of a second to return.
    Ending run(std::function<void()> call, std::chrono::milliseconds limit, const std::atomic<bool>* stop);

private:
    struct Worker;

    std::shared_ptr<Worker> worker_;  ///< null before the first call, and after one was abandoned
    bool givenUp_ = false;
};

/// Releases an object whose destruction may never end, on a separate thread. After `limit`, or much earlier when the
/// program is about to end (`stopping`), the function returns and leaves the object to that thread.
void releaseWithin(std::shared_ptr<void> last, std::chrono::milliseconds limit, bool stopping);

}  // namespace fieldcal
