#include "engine/FrameSelector.h"
#include "tests/engine/Frames.h"

#include <gtest/gtest.h>

#include <cstring>

namespace vq::testing {
namespace {

// A quarter of this is 50 x 50: one channel changed by d everywhere measures exactly 50 * d.
const cv::Size kSize(200, 200);

/// A selector with a fake camera: every infrared pixel holds the number of the push.
class Selection : public ::testing::Test {
protected:
    bool push(int red, int green = 0, const cv::Size& colourSize = kSize, const cv::Size& infraredSize = {6, 4}) {
        ++pushed_;
        const cv::Mat infrared(infraredSize, CV_16UC1, cv::Scalar(pushed_));
        const cv::Mat colour(colourSize, CV_8UC4, cv::Scalar(red, green, pushed_ % 2, 255));
        selector_.push(infraredFrame(infrared), colourFrame(colour));
        return selector_.shouldUseThisFrame(&infrared_, &colour_);
    }
    /// Number of the first of at most `limit` still pushes that is answered with true, 0 for none.
    int pushesUntilSelected(int red, int limit = 40) {
        for (int i = 1; i <= limit; ++i) {
            if (push(red)) return i;
        }
        return 0;
    }
    int selectedPush() const { return infrared_.pixels16()[0]; }

    FrameSelector selector_;
    ImagePairRecord infrared_, colour_;
    int pushed_ = 0;
};

TEST_F(Selection, TakesTheMiddleOfTheFirstNineStillFrames) {
    EXPECT_EQ(selector_.state(), FrameSelector::Initial);
    EXPECT_FALSE(selector_.shouldUseThisFrame(&infrared_, &colour_)) << "nothing pushed yet";
    for (int i = 1; i <= 8; ++i) {
        EXPECT_FALSE(push(100)) << i;
        EXPECT_EQ(selector_.state(), FrameSelector::WaitingForStill);
    }
    EXPECT_TRUE(push(100));
    EXPECT_EQ(selector_.state(), FrameSelector::WaitingToMove);
    EXPECT_EQ(selectedPush(), 5) << "four pushes before the one that triggered";
    EXPECT_EQ(infrared_.width, 6U);
    EXPECT_EQ(infrared_.height, 4U);
    ASSERT_EQ(colour_.pixels.size(), 200U * 200U * 4U);
    const std::uint8_t expected[] = {100, 0, 1, 255};
    EXPECT_EQ(std::memcmp(colour_.pixels.data() + 4 * 777, expected, 4), 0) << "of the same moment";
    EXPECT_EQ(pushesUntilSelected(100), 0) << "never again without a movement";
}

TEST_F(Selection, NeedsNineFreshFramesAfterAMovement) {
    ASSERT_EQ(pushesUntilSelected(0), 9);
    for (int i = 1; i <= 8; ++i) {
        EXPECT_FALSE(push(i % 2 * 250));
        EXPECT_EQ(selector_.state(), FrameSelector::WaitingToMove) << "counting only, push " << i;
    }
    push(0);
    EXPECT_EQ(selector_.state(), FrameSelector::WaitingForStill);
    EXPECT_EQ(pushesUntilSelected(0), 9);
    EXPECT_EQ(selectedPush(), pushed_ - 4);
}

TEST_F(Selection, KeepsTestingTheSlidingRunOfNine) {
    for (int i = 0; i < 8; ++i)
        push(0);
    EXPECT_FALSE(push(200)) << "moved in the ninth";
    // Until the newest, the one four and the one eight before all show the new picture.
    EXPECT_EQ(pushesUntilSelected(200), 8);
}

struct Threshold {
    int red, green;  // against a black picture
    bool moves, isStill;
};

class SelectionThresholds : public Selection, public ::testing::WithParamInterface<Threshold> {};

TEST_P(SelectionThresholds, AreExclusive) {
    const Threshold test = GetParam();
    const auto lastOfNine = [&] {
        for (int i = 0; i < 8; ++i)
            push(0);
        // The blue channel carries the push number's parity: the same for 8, 4 and 0 frames ago.
        return push(test.red, test.green);
    };
    EXPECT_EQ(lastOfNine(), test.isStill);
    selector_.reset();
    ASSERT_EQ(pushesUntilSelected(0), 9);
    lastOfNine();
    EXPECT_EQ(selector_.state() == FrameSelector::WaitingForStill, test.moves);
}

INSTANTIATE_TEST_SUITE_P(Measures, SelectionThresholds,
                         ::testing::Values(Threshold{79, 0, false, true}, Threshold{80, 0, false, false},
                                           Threshold{80, 1, false, false}, Threshold{169, 0, false, false},
                                           Threshold{170, 0, false, false}, Threshold{170, 1, true, false}));

TEST_F(Selection, CountsAChangeOfFrameSizeAsMovement) {
    struct Case {
        cv::Size colour, infrared;
    };
    // 199 pixels also reduce to 50: the motion pictures could still be compared.
    for (const Case& test : {Case{{240, 200}, {6, 4}}, {{199, 200}, {6, 4}}, {kSize, {4, 6}}}) {
        selector_.reset();
        ASSERT_EQ(pushesUntilSelected(0), 9);
        for (int i = 0; i < 8; ++i)
            push(0);
        push(0, 0, test.colour, test.infrared);
        EXPECT_EQ(selector_.state(), FrameSelector::WaitingForStill);
        for (int i = 0; i < 8; ++i)
            EXPECT_FALSE(push(0, 0, test.colour, test.infrared));
        EXPECT_TRUE(push(0, 0, test.colour, test.infrared));
        EXPECT_EQ(infrared_.width, static_cast<std::uint32_t>(test.infrared.width)) << "the record follows";
        EXPECT_EQ(colour_.pixels.size(), static_cast<std::size_t>(test.colour.area()) * 4);
    }
}

TEST_F(Selection, ResetStartsOver) {
    ASSERT_EQ(pushesUntilSelected(0), 9);
    push(0);
    selector_.reset();
    EXPECT_EQ(selector_.state(), FrameSelector::Initial);
    EXPECT_EQ(pushesUntilSelected(0), 9);
}

}  // namespace
}  // namespace vq::testing
