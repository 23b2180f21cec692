#include "tests/simulator/FlashFixture.h"

#include <random>

namespace {

using fieldcal::session::readFile;
using fieldcal::session::writeFile;

/// Writes that are cut short, spoilt or never done.
class FlashTear : public FlashTest {
protected:
    /// Leaves a flash of two whole banks, and in `older` and `newer` what a write finds and wants.
    void SetUp() override {
        FlashTest::SetUp();
        const std::shared_ptr<KXDevice> device = createReady();
        older = turned(blockOf(device.get()), 0.1);
        newer = turned(older, -0.2);
        ASSERT_TRUE(write(device.get(), older));
        image = readFile(flash);
    }
    /// Writes `newer` with these faults, on the flash that `SetUp` left; whether that said so.
    bool writeWith(const std::string& faults) const {
        writeFile(flash, image);
        set("KXSIM_FAULTS", faults);
        const std::shared_ptr<KXDevice> device = createReady();
        const bool written = write(device.get(), newer);
        EXPECT_TRUE(written || device->lastStatus() == 5);
        EXPECT_EQ(device->grab(true), false);
        EXPECT_EQ(device->lastStatus(), written ? 1 : 5) << "without power nothing works";
        set("KXSIM_FAULTS", "");
        return written;
    }
    void cutAndRecover(int step, int bytes) const {
        const std::string fault = "flash:" + std::to_string(step) + ":powercut+" + std::to_string(bytes);
        ASSERT_FALSE(writeWith(fault)) << fault;
        const QByteArray left = stored();
        ASSERT_TRUE(left == bytesOf(older) || (step == kLastStep && left == bytesOf(newer))) << fault;
        ASSERT_TRUE(step != kLastStep || bytes < kHeader || left == bytesOf(newer)) << fault;
        const KXCalibRectParameters last = turned(older, 0.3);
        ASSERT_TRUE(write(createReady().get(), last)) << fault;
        ASSERT_EQ(stored(), bytesOf(last)) << fault;
    }

    KXCalibRectParameters older{};
    KXCalibRectParameters newer{};
    QByteArray image;
};

TEST_F(FlashTear, APowerCutLeavesTheOldOrTheNewBlock) {
    for (int step = 1; step <= kLastStep; ++step) {
        const int size = step == 1 ? 2064 : step == kLastStep ? kHeader : 64;
        for (const int bytes : {0, size / 2, size})
            cutAndRecover(step, bytes);
    }
}

TEST_F(FlashTear, RandomPowerCutsLeaveTheOldOrTheNewBlock) {
    std::mt19937 random(4);
    for (int i = 0; i < 1000; ++i) {
        const int step = static_cast<int>(random() % kLastStep) + 1;
        cutAndRecover(step, static_cast<int>(random() % (step == 1 ? 2066 : 66)));
        if (HasFatalFailure()) return;
    }
}

TEST_F(FlashTear, WrongBitsAreSeenOrNotAsOrdered) {
    for (int step = 1; step <= kLastStep; ++step) {
        const std::string at = "flash:" + std::to_string(step);
        EXPECT_TRUE(writeWith(at + ":corrupt"));
        EXPECT_EQ(stored(), bytesOf(older)) << at;
        EXPECT_TRUE(writeWith(at + ":garble"));
        QByteArray expected = bytesOf(newer);
        if (step > 1 && step < kLastStep)
            expected[64 * (step - 2)] = static_cast<char>(expected.at(64 * (step - 2)) ^ 64);
        EXPECT_EQ(stored(), step > 1 && step < kLastStep ? expected : bytesOf(older)) << at;
    }
}

TEST_F(FlashTear, LiesWriteNothing) {
    EXPECT_TRUE(writeWith("writeRectParameters:1:lie,commitCalibration:1:lie"));
    EXPECT_TRUE(writeWith("commitCalibration:1:lie"));
    EXPECT_EQ(stored(), bytesOf(older));
    set("KXSIM_FAULTS", "writeRectParameters:1:lie");
    const std::shared_ptr<KXDevice> device = createReady();
    EXPECT_FALSE(write(device.get(), newer));
    EXPECT_EQ(device->lastStatus(), 1) << "there is nothing to commit";
    EXPECT_TRUE(write(device.get(), newer));
}

using FlashDeathTest = FlashTear;

TEST_F(FlashDeathTest, ATabletThatDiesLeavesTheOldBlock) {
    for (const int step : {1, 17, kLastStep}) {
        EXPECT_EXIT(writeWith("flash:" + std::to_string(step) + ":die"), ::testing::ExitedWithCode(137), "");
        EXPECT_EQ(stored(), bytesOf(older)) << step;
    }
}

}  // namespace
