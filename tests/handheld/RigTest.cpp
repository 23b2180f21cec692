#include "simulator/synthesis/Rig.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace fieldcal::synthesis {
namespace {

std::array<double, 3> anglesDeg(const session::Matrix3& r) {
    return {std::atan2(r[7], r[8]) * kDegreesPerRadian, -std::asin(r[6]) * kDegreesPerRadian,
            std::atan2(r[3], r[0]) * kDegreesPerRadian};
}

TEST(Rig, DrawnDriftsStayWithinTheSearchRangesAndUseThem) {
    const std::array<double, 3> range{4, 1.5, 2}, absolute{4, 4, 3};
    std::array<double, 3> largest{};
    for (unsigned seed = 0; seed < 300; ++seed) {
        const auto rig = drawRig(seed, {true, {}, {}});
        for (bool platform : {false, true}) {
            const auto factory = anglesDeg(platform ? rig.platform->rotation : rig.third.rotation);
            const auto truth = anglesDeg(platform ? *rig.truthPlatform : *rig.truthThird);
            for (int i = 0; i < 3; ++i) {
                EXPECT_LE(std::abs(truth[i] - factory[i]), 0.95 * range[i] + 1e-9) << seed;
                EXPECT_LT(std::abs(truth[i]), absolute[i]) << seed;
                EXPECT_LE(std::abs(factory[i]), 0.4 + 1e-9) << seed;
                largest[i] = std::max(largest[i], std::abs(truth[i] - factory[i]));
            }
        }
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(largest[i], 0.9 * range[i]);
}

TEST(Rig, AWishedDriftIsTakenAsItStandsAndThePlatformChangesNothingElse) {
    const std::array<double, 3> drift{-4.2, 1.6, 2.1};
    const auto drifted = drawRig(5, {true, drift, drift});
    const auto plain = drawRig(5, {});
    const auto factory = anglesDeg(drifted.third.rotation), truth = anglesDeg(*drifted.truthThird);
    const auto platformFactory = anglesDeg(drifted.platform->rotation),
               platformTruth = anglesDeg(*drifted.truthPlatform);
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(truth[i] - factory[i], drift[i], 1e-9);
        EXPECT_NEAR(platformTruth[i] - platformFactory[i], drift[i], 1e-9);
    }
    EXPECT_EQ(plain.third.rotation, drifted.third.rotation);
    EXPECT_EQ(plain.infrared.fx, drifted.infrared.fx);
    EXPECT_FALSE(plain.platform.has_value());
    EXPECT_FALSE(plain.truthPlatform.has_value());
}

TEST(Rig, TheRightImagerIsDrawnApartWithinItsLimits) {
    double gain = 0, row = 0, column = 0;
    for (unsigned seed = 0; seed < 300; ++seed) {
        const RightImager right = drawRig(seed, {}).right;
        EXPECT_TRUE(right.isApart && !right.affectsDepth);
        gain = std::max(gain, std::abs(right.gain - 1));
        row = std::max(row, std::abs(right.rowOffsetPx));
        column = std::max(column, std::abs(right.columnOffsetPx));
    }
    EXPECT_THAT((std::array<double, 3>{gain / 0.05, row / 0.2, column / 0.05}),
                testing::Each(testing::AllOf(testing::Gt(0.9), testing::Le(1 + 1e-9))));
    RigOptions options;
    options.misalignmentPx = 0.4;
    const Rig bent = drawRig(5, options), plain = drawRig(5, {});
    EXPECT_EQ(bent.right.columnOffsetPx, -0.4);
    EXPECT_EQ(bent.right.gain, plain.right.gain);
    EXPECT_EQ(bent.truthThird, plain.truthThird);
}

}  // namespace
}  // namespace fieldcal::synthesis
