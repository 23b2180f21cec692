#include "engine/FrameSelector.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>

namespace vq::testing {
namespace {

// A quarter of this is 50 x 50: one channel changed by d everywhere measures exactly 50 · d.
const cv::Size kSize(200, 200);

/// A selector with a fake camera: every infrared pixel holds the number of the push.
class Selection : public ::testing::Test {
protected:
    bool push(int red, int green = 0, const cv::Size& colour = kSize, const cv::Size& infrared = {6, 4}) {
        ++pushed_;
        selector_.push(frameOf<fieldcal::ImageFrame16>(cv::Mat(infrared, CV_16UC1, cv::Scalar(pushed_))),
                       frameOf<fieldcal::ImageFrame32>(cv::Mat(colour, CV_8UC4, cv::Scalar(red, green, 7, 255))));
        return selector_.shouldUseThisFrame(&infrared_, &colour_);
    }
    /// Returns the number of the first of forty still pushes after which a pair is selected, 0 for none.
    int pushesUntilSelected(int red) {
        for (int i = 1; i <= 40; ++i) {
            if (push(red)) return i;
        }
        return 0;
    }
    void pushEight(int red) {
        for (int i = 0; i < 8; ++i)
            EXPECT_FALSE(push(red));
    }

    FrameSelector selector_;
    ImagePairRecord infrared_, colour_;
    int pushed_ = 0;
};

TEST_F(Selection, TakesTheMiddleOfTheFirstNineStillFrames) {
    EXPECT_EQ(selector_.state(), FrameSelector::Initial);
    EXPECT_FALSE(selector_.shouldUseThisFrame(&infrared_, &colour_)) << "nothing pushed yet";
    pushEight(100);
    EXPECT_EQ(selector_.state(), FrameSelector::WaitingForStill);
    EXPECT_TRUE(push(101));
    EXPECT_EQ(selector_.state(), FrameSelector::WaitingToMove);
    EXPECT_EQ(infrared_.pixels16()[23], 5) << "four pushes before the one that triggered";
    EXPECT_EQ(std::vector<std::uint8_t>(colour_.pixels.end() - 4, colour_.pixels.end()),
              (std::vector<std::uint8_t>{100, 0, 7, 255}));
    EXPECT_EQ(pushesUntilSelected(100), 0) << "never again without a movement";
    selector_.reset();
    EXPECT_EQ(selector_.state(), FrameSelector::Initial);
    EXPECT_EQ(pushesUntilSelected(100), 9);
}

TEST_F(Selection, NeedsNineFreshFramesAfterAMovement) {
    ASSERT_EQ(pushesUntilSelected(0), 9);
    for (int i = 1; i <= 8; ++i) {
        EXPECT_FALSE(push(i % 2 * 250));
        EXPECT_EQ(selector_.state(), FrameSelector::WaitingToMove) << "only counting";
    }
    push(0);
    EXPECT_EQ(selector_.state(), FrameSelector::WaitingForStill);
    EXPECT_EQ(pushesUntilSelected(0), 9);
    EXPECT_EQ(infrared_.pixels16()[0], pushed_ - 4);
}

TEST_F(Selection, KeepsTestingTheSlidingRunOfNine) {
    pushEight(0);
    EXPECT_FALSE(push(200)) << "moved in the ninth";
    EXPECT_EQ(pushesUntilSelected(200), 8);
    selector_.reset();
    for (int i = 1; i <= 9; ++i)
        EXPECT_FALSE(push(i == 5 ? 200 : 0)) << "there and back: only the middle one differs";
}

TEST_F(Selection, ThresholdsAreExclusive) {
    struct Case {
        int red, green;  // against a black image: 50 · √(red² + green²)
        bool moves, isStill;
    };
    const Case cases[] = {{79, 0, false, true},   {80, 0, false, false},  {80, 1, false, false},
                          {169, 0, false, false}, {170, 0, false, false}, {170, 1, true, false}};
    for (const Case& test : cases) {
        selector_.reset();
        pushEight(0);
        EXPECT_EQ(push(test.red, test.green), test.isStill) << test.red;
        selector_.reset();
        ASSERT_EQ(pushesUntilSelected(0), 9);
        pushEight(0);
        push(test.red, test.green);
        EXPECT_EQ(selector_.state() == FrameSelector::WaitingForStill, test.moves) << test.red;
    }
}

TEST_F(Selection, CountsAChangeOfFrameSizeAsMovement) {
    // Colour, infrared. 199 pixels are also reduced to 50, so the motion images could still be compared.
    const std::pair<cv::Size, cv::Size> cases[] = {{{240, 200}, {6, 4}}, {{199, 200}, {6, 4}}, {kSize, {4, 6}}};
    for (const auto& [colour, infrared] : cases) {
        selector_.reset();
        ASSERT_EQ(pushesUntilSelected(0), 9);
        pushEight(0);
        push(0, 0, colour, infrared);
        EXPECT_EQ(selector_.state(), FrameSelector::WaitingForStill);
        for (int i = 1; i <= 9; ++i)
            EXPECT_EQ(push(0, 0, colour, infrared), i == 9);
        EXPECT_EQ(infrared_.width, static_cast<std::uint32_t>(infrared.width)) << "the record follows";
        EXPECT_EQ(colour_.pixels.size(), static_cast<std::size_t>(colour.area()) * 4);
    }
}

}  // namespace
}  // namespace vq::testing
