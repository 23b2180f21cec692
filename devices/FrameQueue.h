#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

namespace fieldcal {

/// One image of the queue. The queue owns the pixels.
struct QueuedImage {
    const std::uint8_t* pixels = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t sequence = 0;
    double timeSeconds = 0;                           ///< the camera's own time stamp
    std::chrono::steady_clock::time_point arrived{};  ///< the time of arrival in this program
};

/// Passes NV12 images from the camera's thread to the thread that grabs. The consumer always gets the newest image;
/// when it is late, the oldest images are dropped. Sequence numbers may wrap around. One producer and one consumer
/// thread.
class FrameQueue {
public:
    enum class Mode {
        Ring,       ///< several images may wait
        SingleSlot  ///< a new image replaces the waiting one
    };

    explicit FrameQueue(Mode mode = Mode::Ring) : mode_(mode) {}

    /// Producer. Copies the image, whose length follows from its size. Returns false for null pixels or an invalid
    /// size.
    bool push(const QueuedImage& image);

    /// Consumer. Drains the queue to its newest image, waiting at most `waitMs` for one. Returns false and leaves `out`
    /// unchanged when there is nothing newer than the last image returned. The pixels stay valid until the next call.
    bool latest(std::int32_t waitMs, QueuedImage* out);

    /// The number of waiting images.
    std::size_t waiting() const;

    static constexpr std::size_t kSlots = 4;

private:
    struct Slot {
        QueuedImage image;  ///< `pixels` is set when the slot holds one
        std::vector<std::uint8_t> bytes;
    };
    static constexpr std::size_t kMask = kSlots - 1;
    static_assert((kSlots & kMask) == 0, "a power of two");

    static bool isNewer(const Slot& candidate, const Slot& than);
    std::size_t slotForPush();
    bool drainToNewest();

    const Mode mode_;
    std::array<Slot, kSlots> slots_;
    Slot incoming_;  ///< used by the producer only, so that it copies without holding the lock
    Slot output_;    ///< used by the consumer only
    std::size_t readIndex_ = 0;
    std::size_t waiting_ = 0;
    mutable std::mutex mutex_;
    std::condition_variable imageArrived_;
};

}  // namespace fieldcal
