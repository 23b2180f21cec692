#include "tests/devices/ModuleRig.h"

#include <cmath>
#include <random>

namespace fieldcal::testing {
namespace {

/// Returns the rotation of the normalised quaternion (1, x, y, z).
Rotation rotationOf(double x, double y, double z) {
    const double s = 2 / (1 + x * x + y * y + z * z);
    const double r[9] = {1 - s * (y * y + z * z), s * (x * y - z),         s * (x * z + y),
                         s * (x * y + z),         1 - s * (x * x + z * z), s * (y * z - x),
                         s * (x * z - y),         s * (y * z + x),         1 - s * (x * x + y * y)};
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
    const Rotation& third() const { return parameters.colour[ColourCamera::Third].fromDepth.rotation; }
    const Rotation& platform() const { return parameters.colour[ColourCamera::Platform].fromDepth.rotation; }
};

TEST_F(FlashRoundTripTest, WhatIsWrittenIsReadAgainByTheNextProgram) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> component(-0.035, 0.035);
    for (int i = 0; i < 20; ++i) {
        reopen();
        const Rotation newThird = rotationOf(component(random), component(random), component(random));
        const Rotation newPlatform = rotationOf(component(random), component(random), component(random));
        ASSERT_TRUE(sensor->grab(true));
        ASSERT_TRUE(sensor->updateRotation(newThird, newPlatform)) << sensor->faultText().toStdString();
        EXPECT_TRUE(sensor->grab(true)) << "the capture continues";
        reopen();
        EXPECT_LT(largestDifference(third(), newThird), 1e-6);
        EXPECT_LT(largestDifference(platform(), newPlatform), 1e-6);
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
    // A second write in the same run must be possible, too.
    const Rotation last = third();
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(sensor->updateRotation(last, rotationOf(0.01, 1e-4 * i, 0)));
    reopen();
    EXPECT_EQ(third(), last);
}

}  // namespace
}  // namespace fieldcal::testing
