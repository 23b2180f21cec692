#include "simulator/handheld/ViewMaker.h"

#include "simulator/world/Cameras.h"
#include "simulator/world/Worlds.h"

#include <sys/resource.h>
#include <unistd.h>

namespace fieldcal::handheld {

namespace {

/// In a world that moves a resting view is seen at so many moments, so far apart.
constexpr int movingMoments = 3;
constexpr double momentSeconds = 0.12, restSeconds = 3;

synthesis::StillSettings drawSettings(std::uint64_t seed, int number, double darkness) {
    synthesis::Random random(seed + static_cast<std::uint64_t>(number), "exposure");
    synthesis::StillSettings settings;
    settings.infrared.meanLevel = random.uniform(340, 450);
    settings.colour.meanLevel = random.uniform(0.17, 0.30);
    settings.darkness = darkness;
    return settings;
}

/// Frames that are due come first. The threads that help with rendering inherit it.
void yieldToOthers() {
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), 15);
}

/// Renders one view after another.
class Studio {
public:
    Studio(const std::string& world, std::uint64_t seed, const session::SessionDescription& rig)
        : seed_(seed),
          stage_(world::buildWorld(world, seed)),
          cameras_(rig),
          hand_(seed, stage_->lowestPitchDeg, stage_->highestPitchDeg) {}

    std::shared_ptr<const RestingView> make(int number, bool withPlatform) {
        auto view = std::make_shared<RestingView>();
        view->rest = hand_.rest(number);
        view->settings = drawSettings(seed_, number, stage_->darkness);
        const int moments = stage_->moves ? movingMoments : 1;
        for (int i = 0; i < moments; ++i) {
            const double seconds = number * restSeconds + i * momentSeconds;
            const world::Moment infrared{view->rest.pose, seconds}, colour{view->rest.pose, seconds + colourLagSeconds};
            view->moments.push_back({view->rest.pose, cameras_.see(*stage_->world, infrared, colour, withPlatform)});
        }
        return view;
    }

private:
    std::uint64_t seed_;
    std::unique_ptr<world::Stage> stage_;
    world::Cameras cameras_;
    Hand hand_;
};

}  // namespace

ViewMaker::ViewMaker(std::string world, std::uint64_t seed, const session::SessionDescription& rig)
    : world_(std::move(world)), seed_(seed), rig_(rig), thread_([this] { work(); }) {}

ViewMaker::~ViewMaker() {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        stop_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void ViewMaker::request(int number, bool withPlatform) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (number == wanted_.number && withPlatform == wanted_.withPlatform) return;
    wanted_ = {number, withPlatform};
    made_.erase(made_.begin(), made_.lower_bound(number));
    changed_.notify_all();
}

std::shared_ptr<const RestingView> ViewMaker::view(int number, bool withPlatform, std::chrono::milliseconds patience) {
    std::unique_lock<std::mutex> lock(mutex_);
    if (!changed_.wait_for(lock, patience, [&] { return isMade(number, withPlatform); })) return nullptr;
    return made_.at(number);
}

bool ViewMaker::isMade(int number, bool withPlatform) const {
    const auto found = made_.find(number);
    return found != made_.end() && (!withPlatform || !found->second->moments.front().view.platform.empty());
}

/// Waits for something to do; false when it is over.
bool ViewMaker::nextOrder(Order* order) {
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

void ViewMaker::work() {
    yieldToOthers();
    Studio studio(world_, seed_, rig_);
    Order order{};
    while (nextOrder(&order)) {
        auto view = studio.make(order.number, order.withPlatform);
        const std::lock_guard<std::mutex> lock(mutex_);
        made_[order.number] = std::move(view);
        changed_.notify_all();
    }
}

}  // namespace fieldcal::handheld
