#include "devices/FrameQueue.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace fieldcal {
namespace {

/// A 2 x 2 picture whose bytes all say `value`.
bool push(FrameQueue& queue, std::uint32_t sequence, std::uint8_t value) {
    const std::vector<std::uint8_t> bytes(6, value);
    return queue.push({bytes.data(), 2, 2, sequence, 0.0});
}

/// The value of the newest picture; -1 when there is nothing newer.
int take(FrameQueue& queue) {
    QueuedPicture picture;
    return queue.latest(0, &picture) ? picture.pixels[5] : -1;
}

TEST(FrameQueue, DrainsToTheNewestPicture) {
    FrameQueue queue;
    EXPECT_EQ(take(queue), -1);
    for (std::uint8_t i = 0; i < 3; ++i)
        push(queue, i, 10 + i);
    EXPECT_EQ(take(queue), 12);
    EXPECT_EQ(queue.waiting(), 0U);
    EXPECT_EQ(take(queue), -1) << "nothing new";
}

TEST(FrameQueue, AFullRingDropsTheOldest) {
    FrameQueue queue;
    // Twice around the ring, with reads in between, so that the indices wrap.
    for (std::uint32_t round = 0; round < 3; ++round) {
        for (std::uint32_t i = 0; i < 7; ++i)
            push(queue, round * 7 + i, static_cast<std::uint8_t>(round * 7 + i));
        EXPECT_EQ(queue.waiting(), FrameQueue::kSlots);
        EXPECT_EQ(take(queue), static_cast<int>(round * 7 + 6));
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
}

TEST(FrameQueue, ASingleSlotKeepsTheLastPicture) {
    FrameQueue queue(FrameQueue::Mode::SingleSlot);
    push(queue, 5, 1);
    push(queue, 4, 2);
    EXPECT_EQ(queue.waiting(), 1U);
    EXPECT_EQ(take(queue), 2);
    EXPECT_EQ(take(queue), -1);
}

TEST(FrameQueue, ReturnedPixelsOutliveFurtherPushes) {
    FrameQueue queue;
    push(queue, 0, 42);
    QueuedPicture picture;
    ASSERT_TRUE(queue.latest(0, &picture));
    for (std::uint32_t i = 1; i < 20; ++i)
        push(queue, i, 0);
    EXPECT_EQ(picture.pixels[0], 42);
}

TEST(FrameQueue, RefusesWhatIsNoPicture) {
    FrameQueue queue;
    const std::uint8_t byte = 0;
    EXPECT_FALSE(queue.push({nullptr, 2, 2, 0, 0.0}));
    EXPECT_FALSE(queue.push({&byte, 0, 2, 0, 0.0}));
    EXPECT_FALSE(queue.push({&byte, 2, -2, 0, 0.0}));
    EXPECT_FALSE(queue.push({&byte, 1 << 20, 2, 0, 0.0}));
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
        QueuedPicture picture;
        if (!queue.latest(1000, &picture)) break;
        ASSERT_GT(picture.sequence, last);
        ASSERT_EQ(std::string(picture.pixels, picture.pixels + 6), std::string(6, static_cast<char>(picture.sequence)))
            << "a picture is never mixed";
        last = picture.sequence;
    }
    producer.join();
    EXPECT_EQ(last, kPictures);
}

}  // namespace
}  // namespace fieldcal
