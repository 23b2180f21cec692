#include "devices/FrameQueue.h"

#include <chrono>
#include <utility>

namespace fieldcal {
namespace {

constexpr std::int32_t kLargestSide = 16384;

bool isPicture(const QueuedPicture& picture) {
    return picture.pixels != nullptr && picture.width > 0 && picture.height > 0 && picture.width <= kLargestSide &&
           picture.height <= kLargestSide;
}

std::size_t nv12Bytes(const QueuedPicture& picture) {
    return static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) * 3 / 2;
}

}  // namespace

bool FrameQueue::push(const QueuedPicture& picture) {
    if (!isPicture(picture)) return false;
    incoming_.bytes.assign(picture.pixels, picture.pixels + nv12Bytes(picture));
    incoming_.picture = picture;
    incoming_.picture.pixels = incoming_.bytes.data();
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        std::swap(slots_[slotForPush()], incoming_);
    }
    pictureWaits_.notify_one();
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

bool FrameQueue::latest(std::int32_t waitMs, QueuedPicture* out) {
    std::unique_lock<std::mutex> lock(mutex_);
    const auto somethingWaits = [this] { return waiting_ > 0; };
    if (!pictureWaits_.wait_for(lock, std::chrono::milliseconds(waitMs), somethingWaits)) return false;
    if (!drainToNewest()) return false;
    *out = output_.picture;
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
    if (than.picture.pixels == nullptr) return true;
    return static_cast<std::int32_t>(candidate.picture.sequence - than.picture.sequence) > 0;
}

std::size_t FrameQueue::waiting() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return waiting_;
}

}  // namespace fieldcal
