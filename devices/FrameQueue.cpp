#include "devices/FrameQueue.h"

#include <chrono>
#include <utility>

namespace fieldcal {
namespace {

constexpr std::int32_t kLargestSide = 16384;

bool isImage(const QueuedImage& image) {
    return image.pixels != nullptr && image.width > 0 && image.height > 0 && image.width <= kLargestSide &&
           image.height <= kLargestSide;
}

std::size_t nv12Bytes(const QueuedImage& image) {
    return static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) * 3 / 2;
}

}  // namespace

bool FrameQueue::push(const QueuedImage& image) {
    if (!isImage(image)) return false;
    incoming_.bytes.assign(image.pixels, image.pixels + nv12Bytes(image));
    incoming_.image = image;
    incoming_.image.pixels = incoming_.bytes.data();
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        std::swap(slots_[slotForPush()], incoming_);
    }
    imageArrived_.notify_one();
    return true;
}

std::size_t FrameQueue::slotForPush() {
    if (mode_ == Mode::SingleSlot) {
        waiting_ = 1;
        return 0;
    }
    if (waiting_ == kSlots) {
        readIndex_ = (readIndex_ + 1) & kMask;
        --waiting_;
    }
    return (readIndex_ + waiting_++) & kMask;
}

bool FrameQueue::latest(std::int32_t waitMs, QueuedImage* out) {
    std::unique_lock<std::mutex> lock(mutex_);
    const auto imageWaits = [this] { return waiting_ > 0; };
    if (!imageArrived_.wait_for(lock, std::chrono::milliseconds(waitMs), imageWaits)) return false;
    if (!drainToNewest()) return false;
    *out = output_.image;
    return true;
}

bool FrameQueue::drainToNewest() {
    bool renewed = false;
    for (; waiting_ > 0; --waiting_) {
        Slot& slot = slots_[readIndex_];
        if (mode_ == Mode::SingleSlot || isNewer(slot, output_)) {
            std::swap(slot, output_);
            renewed = true;
        }
        if (mode_ == Mode::Ring) readIndex_ = (readIndex_ + 1) & kMask;
    }
    return renewed;
}

bool FrameQueue::isNewer(const Slot& candidate, const Slot& than) {
    if (than.image.pixels == nullptr) return true;
    return static_cast<std::int32_t>(candidate.image.sequence - than.image.sequence) > 0;
}

std::size_t FrameQueue::waiting() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return waiting_;
}

}  // namespace fieldcal
