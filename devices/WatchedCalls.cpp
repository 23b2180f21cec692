#include "devices/WatchedCalls.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace fieldcal {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kStopCheck{20};
constexpr std::chrono::milliseconds kGraceAfterStop{333};
/// Time limit for releasing an object while the program is about to end.
constexpr std::chrono::milliseconds kReleaseLimitWhenStopping{600};
/// Largest time counted per check, so that the tablet's sleep does not count as waiting.
constexpr std::chrono::milliseconds kLongestCheck{500};

}  // namespace

struct WatchedCalls::Worker {
    std::mutex mutex;
    std::condition_variable changed;
    std::function<void()> call;  ///< empty while there is none
    bool leave = false;
    std::thread thread;

    static void work(const std::shared_ptr<Worker>& self) {
        std::unique_lock lock(self->mutex);
        while (true) {
            self->changed.wait(lock, [&] { return self->leave || self->call != nullptr; });
            if (self->leave) return;
            lock.unlock();
            self->call();
            lock.lock();
            self->call = nullptr;
            self->changed.notify_all();
        }
    }

    bool returnedWithin(Clock::duration time, std::unique_lock<std::mutex>* lock) {
        return changed.wait_for(*lock, time, [&] { return call == nullptr; });
    }
};

WatchedCalls::WatchedCalls() = default;

WatchedCalls::~WatchedCalls() {
    if (worker_ == nullptr) return;
    {
        const std::lock_guard lock(worker_->mutex);
        worker_->leave = true;
        worker_->changed.notify_all();
    }
    worker_->thread.join();
}

WatchedCalls::Ending WatchedCalls::run(std::function<void()> call, std::chrono::milliseconds limit,
                                       const std::atomic<bool>* stop) {
    if (givenUp_) return Ending::Overdue;
    if (worker_ == nullptr) {
        worker_ = std::make_shared<Worker>();
        worker_->thread = std::thread(Worker::work, worker_);
    }
    std::unique_lock lock(worker_->mutex);
    worker_->call = std::move(call);
    worker_->changed.notify_all();

    Clock::duration left = limit;
    Clock::time_point last = Clock::now();
    bool stopped = false;
    while (!worker_->returnedWithin(std::min<Clock::duration>(left, kStopCheck), &lock)) {
        const Clock::time_point now = Clock::now();
        left -= std::min<Clock::duration>(now - std::exchange(last, now), kLongestCheck);
        if (!stopped && stop != nullptr && *stop) {
            stopped = true;
            left = std::min<Clock::duration>(left, kGraceAfterStop);
        }
        if (left > Clock::duration::zero()) continue;
        givenUp_ = true;
        worker_->leave = true;
        worker_->thread.detach();
        lock.unlock();
        worker_.reset();
        return stopped ? Ending::Stopped : Ending::Overdue;
    }
    return Ending::Returned;
}

void releaseWithin(std::shared_ptr<void> last, std::chrono::milliseconds limit, bool stopping) {
    if (last == nullptr) return;
    const auto held = std::make_shared<std::shared_ptr<void>>(std::move(last));
    WatchedCalls().run([held] { held->reset(); }, stopping ? std::min(kReleaseLimitWhenStopping, limit) : limit,
                       nullptr);
}

}  // namespace fieldcal
