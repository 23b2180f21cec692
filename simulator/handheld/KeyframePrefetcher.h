#pragma once

#include "simulator/handheld/KeyframeRenderer.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace fieldcal::handheld {

/// Builds a world and renders the keyframes of a hand ahead of time, on its own thread. The other members may be called
/// from one thread. The destructor stops the rendering.
class KeyframePrefetcher {
public:
    /// `ahead`: keyframes are rendered while others are shown, with a lower priority than showing them.
    KeyframePrefetcher(std::string world, std::uint64_t seed, const synthesis::Rig& rig, bool ahead);
    ~KeyframePrefetcher();
    KeyframePrefetcher(const KeyframePrefetcher&) = delete;
    KeyframePrefetcher& operator=(const KeyframePrefetcher&) = delete;

    /// Requests a keyframe; the following one is rendered next. Earlier ones may be discarded.
    void request(int number, bool withPlatform);
    /// Pauses rendering while the processors are needed for frames that are due.
    void pause(bool paused) { interruption_.pause(paused); }
    /// Returns null if the keyframe is not ready within `patience`.
    std::shared_ptr<const Keyframe> view(int number, bool withPlatform, std::chrono::milliseconds patience);

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
    std::map<int, std::shared_ptr<const Keyframe>> made_;
    std::thread thread_;  ///< declared last, because it uses all other members
};

}  // namespace fieldcal::handheld
