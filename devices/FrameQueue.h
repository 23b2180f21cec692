#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

namespace fieldcal {

/// One picture of the queue. The pixels belong to the queue.
struct QueuedPicture {
    const std::uint8_t* pixels = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t sequence = 0;
    double timeSeconds = 0;                           ///< the camera's own time stamp
    std::chrono::steady_clock::time_point arrived{};  ///< here
};

/// Hands NV12 pictures from the camera's thread to the thread that grabs. The reader always gets the newest one;
/// a reader that is late loses the oldest. Sequence numbers may wrap around. One producer and one consumer thread.
class FrameQueue {
public:
    enum class Mode {
        Ring,       ///< several pictures may wait
        SingleSlot  ///< the last picture replaces the one that waits
    };

    explicit FrameQueue(Mode mode = Mode::Ring) : mode_(mode) {}

    /// Producer. Copies the picture; its bytes follow from the size. False: null, or a size without a picture.
    bool push(const QueuedPicture& picture);

    /// Consumer. Drains the queue to its newest picture, waiting at most `waitMs` for one. False: nothing newer than
    /// the last picture returned, and `out` is untouched. The pixels stay valid until the next call.
    bool latest(std::int32_t waitMs, QueuedPicture* out);

    /// Pictures that wait.
    std::size_t waiting() const;

    static constexpr std::size_t kSlots = 4;

private:
    struct Slot {
        QueuedPicture picture;  ///< `pixels` is set when the slot holds one
        std::vector<std::uint8_t> bytes;
    };
    static constexpr std::size_t kMask = kSlots - 1;
    static_assert((kSlots & kMask) == 0, "a power of two");

    static bool isNewer(const Slot& candidate, const Slot& than);
    std::size_t slotForPush();
    bool drainToNewest();

    const Mode mode_;
    std::array<Slot, kSlots> slots_;
    Slot incoming_;  ///< the producer's own, so that it copies without holding the lock
    Slot output_;    ///< the consumer's own
    std::size_t readIndex_ = 0;
    std::size_t waiting_ = 0;
    mutable std::mutex mutex_;
    std::condition_variable pictureWaits_;
};

}  // namespace fieldcal
