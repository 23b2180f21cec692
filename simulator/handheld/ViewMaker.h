#pragma once

#include "simulator/handheld/Studio.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace fieldcal::handheld {

/// Builds a world and renders the views of a hand ahead of time, on a thread of its own. The other members may be
/// called from one thread. Destruction stops the rendering.
class ViewMaker {
public:
    /// `ahead`: views are made while others are shown, and whoever shows them comes first.
    ViewMaker(std::string world, std::uint64_t seed, const synthesis::Rig& rig, bool ahead);
    ~ViewMaker();
    ViewMaker(const ViewMaker&) = delete;
    ViewMaker& operator=(const ViewMaker&) = delete;

    /// Asks for a view; the one after it is made next. Earlier ones may be forgotten.
    void request(int number, bool withPlatform);
    /// Whether whoever shows views needs the processors for now.
    void pause(bool paused) { interruption_.pause(paused); }
    /// Null while it is not there; `patience` is how long to wait for it at most.
    std::shared_ptr<const RestingView> view(int number, bool withPlatform, std::chrono::milliseconds patience);

private:
    struct Order {
        int number;
        bool withPlatform;
    };
    void work();
    bool nextOrder(Order* order);
    bool isMade(int number, bool withPlatform) const;

    const std::string world_;
    const std::uint64_t seed_;
    const synthesis::Rig rig_;
    const bool ahead_;

    std::mutex mutex_;
    std::condition_variable changed_;
    bool stop_ = false;
    world::Interruption interruption_;
    Order wanted_{0, false};
    std::map<int, std::shared_ptr<const RestingView>> made_;
    std::thread thread_;  ///< last, so that it finds everything else in place
};

}  // namespace fieldcal::handheld
