#include "workflow/CaptureGuide.h"

#include <gtest/gtest.h>

namespace fieldcal {
namespace {

using Areas = std::vector<double>;

TEST(CaptureGuideTest, TheCameraTurnsSoThatDetailMovesIntoTheAreasWithoutIt) {
    EXPECT_EQ(nextLook({1, 1, 1, 0, 1, 1, 1, 0, 1, 1, 1, 0}), Look::Left) << "what is seen moves to the right";
    EXPECT_EQ(nextLook({0, 1, 1, 1, 0, 1, 1, 1, 0, 1, 1, 1}), Look::Right);
    EXPECT_EQ(nextLook({0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1}), Look::Down) << "the sky has no detail";
    EXPECT_EQ(nextLook({1, 1, 1, 1, 1, 1, 1, 1, 0, 0.2, 0, 0}), Look::Up);
    EXPECT_EQ(nextLook(Areas(12, 0)), Look::Anywhere) << "no side needs more than another";
    EXPECT_EQ(nextLook({1, 1, 1, 0.7, 1, 1, 1, 1, 1, 1, 1, 1}), Look::Anywhere) << "hardly anything is missing";
    EXPECT_EQ(nextLook({}), Look::Anywhere);
}

TEST(CaptureGuideTest, APhotoIsWorthWhatItAddsWhereSomethingIsMissing) {
    const Areas half{1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0};
    const Areas more{1, 1, 1, 1, 1, 1, 0.5, 0, 0, 0, 0, 0};
    EXPECT_EQ(photoWorth(300, {}, half), PhotoWorth::Useful);
    EXPECT_EQ(photoWorth(300, half, more), PhotoWorth::Useful);
    EXPECT_EQ(photoWorth(300, half, half), PhotoWorth::NothingNew);
    EXPECT_EQ(photoWorth(5, half, more), PhotoWorth::TooLittleDetail);
    EXPECT_EQ(photoWorth(300, Areas(12, 1), Areas(12, 1)), PhotoWorth::Useful) << "more of everything is more accurate";
}

}  // namespace
}  // namespace fieldcal
