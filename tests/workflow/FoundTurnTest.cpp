#include "workflow/FoundTurn.h"

#include <gtest/gtest.h>

#include <cmath>

namespace fieldcal {
namespace {

FoundTurn turnBy(double x, double y, double z, double deviationDeg = 0.005) {
    vq::SolutionQuality quality;
    quality.deviationDeg = {deviationDeg, deviationDeg, deviationDeg};
    return {{x, y, z}, quality};
}

TEST(FoundTurnTest, TheVerdictComparesTheTurnWithItsDeviation) {
    const auto fits = StoredRotation::StillFits, turned = StoredRotation::HasTurned, far = StoredRotation::UnusuallyFar;
    EXPECT_EQ(turnBy(0.014, -0.014, 0.014).verdict(), fits);
    EXPECT_EQ(turnBy(0.014, -0.016, 0).verdict(), turned) << "more than three deviations about one axis";
    EXPECT_EQ(turnBy(0, 0, 0.11, 0.1).verdict(), turned) << "a large deviation is no proof that it fits";
    EXPECT_EQ(turnBy(2, -2, 0.5).verdict(), turned);
    EXPECT_EQ(turnBy(2, -2.2, 0.5).verdict(), far);
    EXPECT_EQ((FoundTurn{{0, 0, 0}, {}}.verdict()), turned) << "nothing is known about how good the solution is";
}

TEST(FoundTurnTest, TheTurnIsTheCamerasOwnAgainstWhereItWas) {
    const auto aboutY = [](double degrees) {
        const auto c = static_cast<float>(std::cos(degrees * kRadiansPerDegree));
        const auto s = static_cast<float>(std::sin(degrees * kRadiansPerDegree));
        return Rotation{c, 0, s, 0, 1, 0, -s, 0, c};
    };
    const FoundTurn turn = foundTurn(aboutY(3), aboutY(2), {});
    EXPECT_NEAR(turn.anglesDeg[0], 0, 1e-4);
    EXPECT_NEAR(turn.anglesDeg[1], 1, 1e-4) << "points went to the left, so the camera went to the right";
    EXPECT_NEAR(turn.anglesDeg[2], 0, 1e-4);
}

}  // namespace
}  // namespace fieldcal
