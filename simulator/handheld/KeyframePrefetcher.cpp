#include "simulator/handheld/KeyframePrefetcher.h"

#include "simulator/handheld/KeyframeRenderer.h"

#include <sys/resource.h>
#include <unistd.h>

namespace fieldcal::handheld {

namespace {

/// Lowers the priority of rendering, so that frames that are due come first. Threads started for rendering inherit it.
void yieldToOthers() {
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), 15);
}

}  // namespace

KeyframePrefetcher::KeyframePrefetcher(std::string world, std::uint64_t seed, const synthesis::Rig& rig, bool ahead)
    : world_(std::move(world)), seed_(seed), rig_(rig), ahead_(ahead), thread_([this] { work(); }) {}

KeyframePrefetcher::~KeyframePrefetcher() {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        stop_ = true;
    }
    changed_.notify_all();
    interruption_.end();
    thread_.join();
}

void KeyframePrefetcher::request(int number, bool withPlatform) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (number == wanted_.number && withPlatform == wanted_.withPlatform) return;
    wanted_ = {number, withPlatform};
    made_.erase(made_.begin(), made_.lower_bound(number));
    changed_.notify_all();
}

std::shared_ptr<const Keyframe> KeyframePrefetcher::view(int number, bool withPlatform,
                                                         std::chrono::milliseconds patience) {
    std::unique_lock<std::mutex> lock(mutex_);
    if (!changed_.wait_for(lock, patience, [&] { return isMade(number, withPlatform); })) return nullptr;
    return made_.at(number);
}

bool KeyframePrefetcher::isMade(int number, bool withPlatform) const {
    const auto found = made_.find(number);
    return found != made_.end() && (!withPlatform || !found->second->moments.front().view.platform.empty());
}

/// Waits for a keyframe to render; returns false when the object is being destroyed.
bool KeyframePrefetcher::nextOrder(Order* order) {
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
        if (stop_) return false;
        for (int number = wanted_.number; number <= wanted_.number + 1; ++number) {
            if (isMade(number, wanted_.withPlatform)) continue;
            *order = {number, wanted_.withPlatform};
            return true;
        }
        changed_.wait(lock);
    }
}

void KeyframePrefetcher::work() {
    if (ahead_) yieldToOthers();
    KeyframeRenderer renderer(world_, seed_, rig_);
    Order order{};
    while (nextOrder(&order)) {
        auto view = renderer.render(order.number, order.withPlatform, &interruption_);
        const std::lock_guard<std::mutex> lock(mutex_);
        made_[order.number] = std::move(view);
        changed_.notify_all();
    }
}

}  // namespace fieldcal::handheld
