#include "devices/FrameQueue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>

namespace fieldcal {
namespace {

/// Pushes a 2 x 2 image whose bytes all are `value`.
bool push(FrameQueue& queue, std::uint32_t sequence, std::uint8_t value) {
    const std::vector<std::uint8_t> bytes(6, value);
    return queue.push({bytes.data(), 2, 2, sequence, 0.0});
}

/// Returns the value of the newest image; -1 when there is nothing newer.
int take(FrameQueue& queue) {
    QueuedImage image;
    return queue.latest(0, &image) ? image.pixels[5] : -1;
}

TEST(FrameQueue, DrainsToTheNewestAndDropsTheOldest) {
    FrameQueue queue;
    EXPECT_EQ(take(queue), -1);
    // More pushes than the ring has slots, with reads in between, so that the indices wrap.
    std::uint8_t number = 0;
    for (const std::size_t pushed : {3, 7, 1, 7, 2, 7}) {
        for (std::size_t i = 0; i < pushed; ++i, ++number)
            push(queue, number, number);
        EXPECT_EQ(queue.waiting(), std::min(pushed, FrameQueue::kSlots));
        EXPECT_EQ(take(queue), number - 1);
        EXPECT_EQ(take(queue), -1) << "nothing new";
    }
}

TEST(FrameQueue, SequenceNumbersDecideAndWrapAround) {
    FrameQueue queue;
    push(queue, 0xFFFFFFFEU, 1);
    EXPECT_EQ(take(queue), 1) << "an empty output is older than anything";
    push(queue, 0xFFFFFFFDU, 2);
    EXPECT_EQ(take(queue), -1) << "older than what was returned";
    push(queue, 3, 3);
    push(queue, 0xFFFFFFFFU, 4);
    EXPECT_EQ(take(queue), 3) << "newest by number, past the wrap";

    FrameQueue singleSlot(FrameQueue::Mode::SingleSlot);
    push(singleSlot, 5, 1);
    push(singleSlot, 4, 2);
    EXPECT_EQ(take(singleSlot), 2) << "the last one, whatever its number";
    EXPECT_EQ(take(singleSlot), -1);
}

TEST(FrameQueue, RefusesWhatIsNoPicture) {
    FrameQueue queue;
    const std::uint8_t byte = 0;
    for (const QueuedImage& image : {QueuedImage{nullptr, 2, 2}, {&byte, 0, 2}, {&byte, 2, -2}, {&byte, 1 << 20, 2}})
        EXPECT_FALSE(queue.push(image));
    EXPECT_EQ(queue.waiting(), 0U);
}

TEST(FrameQueue, AProducerAndAConsumerAtFullSpeed) {
    constexpr std::uint32_t kPictures = 20000;
    FrameQueue queue;
    std::thread producer([&queue] {
        for (std::uint32_t i = 1; i <= kPictures; ++i)
            push(queue, i, static_cast<std::uint8_t>(i));
    });
    std::uint32_t last = 0;
    while (last < kPictures) {
        QueuedImage image;
        if (!queue.latest(1000, &image)) break;
        ASSERT_GT(image.sequence, last);
        ASSERT_EQ(std::string(image.pixels, image.pixels + 6), std::string(6, static_cast<char>(image.sequence)))
            << "an image is never mixed";
        last = image.sequence;
    }
    producer.join();
    EXPECT_EQ(last, kPictures);
}

}  // namespace
}  // namespace fieldcal
