#include "tests/devices/ModuleRig.h"

#include <cmath>
#include <random>

namespace fieldcal::testing {
namespace {

Rotation rotationOf(double a0, double a1, double a2) {
    const double c0 = std::cos(a0), s0 = std::sin(a0), c1 = std::cos(a1), s1 = std::sin(a1);
    const double c2 = std::cos(a2), s2 = std::sin(a2);
    const double r[9] = {c2 * c1,
                         c2 * s1 * s0 - s2 * c0,
                         c2 * s1 * c0 + s2 * s0,
                         s2 * c1,
                         s2 * s1 * s0 + c2 * c0,
                         s2 * s1 * c0 - c2 * s0,
                         -s1,
                         c1 * s0,
                         c1 * c0};
    Rotation out{};
    std::copy(r, r + 9, out.begin());
    return out;
}

double largestDifference(const Rotation& a, const Rotation& b) {
    double largest = 0;
    for (std::size_t i = 0; i < 9; ++i)
        largest = std::max(largest, std::abs(double{a[i]} - double{b[i]}));
    return largest;
}

class FlashRoundTripTest : public ModuleRig {
protected:
    const Rotation& third() const { return parameters.depthToInModule.rotation; }
    const Rotation& platform() const { return parameters.depthToOutOfModule.rotation; }
};

TEST_F(FlashRoundTripTest, WhatIsWrittenIsReadAgainByTheNextProgram) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> angle(-0.07, 0.07);
    for (int i = 0; i < 20; ++i) {
        reopen();
        const Rotation newThird = rotationOf(angle(random), angle(random), angle(random));
        const Rotation newPlatform = rotationOf(angle(random), angle(random), angle(random));
        ASSERT_TRUE(sensor->updateRotation(newThird, newPlatform)) << sensor->faultText().toStdString();
        reopen();
        EXPECT_LT(largestDifference(third(), newThird), 1e-6);
        EXPECT_LT(largestDifference(platform(), newPlatform), 1e-6);
    }
}

TEST_F(FlashRoundTripTest, WritingBackWhatWasReadChangesNoBit) {
    const QByteArray factory = stored();
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(sensor->updateRotation(third(), platform()));
        EXPECT_EQ(stored(), factory);
    }
}

TEST_F(FlashRoundTripTest, AHundredSavesOfOneCameraLeaveTheOtherAlone) {
    reopen();
    const Rotation atFirst = platform();
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(sensor->updateRotation(rotationOf(1e-4 * i, 0.01, -1e-3), platform()));
        reopen();
        ASSERT_EQ(platform(), atFirst) << "save " << i;
    }
    // The other way round, within one run as well.
    const Rotation last = third();
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(sensor->updateRotation(last, rotationOf(0.01, 1e-4 * i, 0)));
    reopen();
    EXPECT_EQ(third(), last);
}

TEST_F(FlashRoundTripTest, RunningPicturesGoOnAfterAWrite) {
    reopen();
    ASSERT_TRUE(sensor->grab(true));
    ASSERT_TRUE(sensor->updateRotation(rotationOf(0.01, 0, 0), platform()));
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_EQ(reports, std::vector<std::string>{});
}

}  // namespace
}  // namespace fieldcal::testing
