#include "render/DepthColourMap.h"
#include "render/DepthRange.h"
#include "render/InfraredPicture.h"

#include <QColor>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace fieldcal {
namespace {

/// CIE L*a*b*: a perceptual measure that is independent of the one from which the colours are made.
std::array<double, 3> lab(const std::array<std::uint8_t, 4>& rgba) {
    const auto linear = [](int value) {
        const double v = value / 255.0;
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    const double r = linear(rgba[0]), g = linear(rgba[1]), b = linear(rgba[2]);
    const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = f((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505);
    const double y = f(0.2126 * r + 0.7152 * g + 0.0722 * b);
    const double z = f((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

TEST(DepthColours, EqualRatiosOfDepthLookEquallyDifferent) {
    constexpr int kSteps = 16;
    constexpr DepthRange kRange{0.7, 4};
    const DepthColours depthColour(kRange);
    const double ratio = std::pow(kRange.farMetres / kRange.nearMetres, 1.0 / kSteps);
    double smallest = 1e9, largest = 0;
    for (int step = 0; step < kSteps; ++step) {
        const double metres = kRange.nearMetres * std::pow(ratio, step);
        const auto nearer = lab(depthColour(static_cast<std::uint16_t>(std::lround(1000 * metres))));
        const auto farther = lab(depthColour(static_cast<std::uint16_t>(std::lround(1000 * metres * ratio))));
        EXPECT_LT(farther[0], nearer[0]) << "farther is darker, " << metres;
        const double difference = std::hypot(farther[0] - nearer[0], farther[1] - nearer[1], farther[2] - nearer[2]);
        smallest = std::min(smallest, difference);
        largest = std::max(largest, difference);
    }
    EXPECT_GT(smallest, 4) << "no two steps look the same";
    EXPECT_LT(largest / smallest, 3);
}

TEST(DepthColours, BeyondTheRangeTheEndsGoOn) {
    const DepthColours depthColour({1, 10});
    EXPECT_EQ(depthColour(1), depthColour(1000));
    EXPECT_EQ(depthColour(10000), depthColour(65535));
    EXPECT_NE(depthColour(1000), depthColour(1200));
}

TEST(DepthColours, TheRangeLeavesOutTheNearestAndTheFarthestTwentieth) {
    std::vector<std::uint16_t> depths;
    for (int i = 0; i <= 1000; ++i)
        depths.push_back(static_cast<std::uint16_t>(i < 40 ? 150 : i > 960 ? 60000 : 2000 + 10 * i));
    std::reverse(depths.begin(), depths.end());
    const DepthRange range = percentileRange(&depths);
    EXPECT_NEAR(range.nearMetres, 2.5, 1e-9);
    EXPECT_NEAR(range.farMetres, 11.5, 1e-9);

    std::vector<std::uint16_t> wall(100, 3000);
    const DepthRange widened = percentileRange(&wall);
    EXPECT_NEAR(widened.farMetres / widened.nearMetres, 1.5, 1e-9) << "noise does not get every colour";
    EXPECT_NEAR(widened.farMetres * widened.nearMetres, 9, 1e-9) << "about the wall";
}

TEST(InfraredForTheEye, KeepsTheOrderOfLight) {
    ImageFrame16 infrared;
    infrared.resize(1025, 1);
    for (std::uint16_t level = 0; level < 1024; ++level)
        infrared.pixels()[level] = level;
    infrared.pixels()[1024] = 60000;
    ImageFrame32 picture;
    infraredToPicture(infrared, &picture);
    const std::uint8_t* pixel = picture.bytes();
    EXPECT_EQ(pixel[0], 0);
    EXPECT_EQ(pixel[4 * 1023], 255);
    EXPECT_EQ(pixel[4 * 1024], 255);
    EXPECT_NEAR(pixel[4 * 130], 100, 1) << "where there is just enough light, the scene can be made out";
    for (int level = 1; level < 1024; ++level) {
        ASSERT_GE(pixel[4 * level], pixel[4 * (level - 1)]);
        ASSERT_EQ(pixel[4 * level], pixel[4 * level + 1]);
        ASSERT_EQ(pixel[4 * level + 3], 255);
    }
}

}  // namespace
}  // namespace fieldcal
