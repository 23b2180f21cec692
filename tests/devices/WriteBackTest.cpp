#include "devices/CameraParameterReader.h"
#include "devices/ParameterBackup.h"
#include "tests/devices/SensorFixture.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <future>
#include <limits>
#include <thread>

namespace fieldcal::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using Flash = WriteBackReport::Flash;

// Quarter turns, so that every product can be checked by hand.
constexpr Rotation kIdentity{1, 0, 0, 0, 1, 0, 0, 0, 1};
constexpr Rotation kAboutX{1, 0, 0, 0, 0, -1, 0, 1, 0};
constexpr Rotation kAboutY{0, 0, 1, 0, 1, 0, -1, 0, 0};
constexpr Rotation kAboutZ{0, -1, 0, 1, 0, 0, 0, 0, 1};

const std::vector<std::string> kWritingCalls{"stopCapture()",          "rectParameters()",       "privateInterface()",
                                             "writeRectParameters(1)", "commitCalibration()",    "rectParameters()",
                                             "resumeDevice()",         "rectParameters()",       "zToThirdExtrinsics()",
                                             "platformCamera()",       "zToPlatformExtrinsics()"};

class WriteBackTest : public SensorTest {
protected:
    void open() {
        ASSERT_TRUE(sensor->open(applicationSettings()));
        ASSERT_TRUE(readCameraParameters(*sensor, &parameters, [] {}));
        std::copy(kAboutZ.begin(), kAboutZ.end(), device->flash.rectificationInfrared);
        std::copy(kAboutX.begin(), kAboutX.end(), device->flash.rectificationThird);
        std::copy(kAboutY.begin(), kAboutY.end(), device->flash.rectificationPlatform);
        device->written = device->flash;
        device->calls.clear();
    }
    static bool sameBytes(const KXCalibRectParameters& a, const KXCalibRectParameters& b) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(&a);
        return std::equal(bytes, bytes + sizeof(a), reinterpret_cast<const std::uint8_t*>(&b));
    }
    bool flashIs(const KXCalibRectParameters& block) const { return sameBytes(device->flash, block); }
    Flash flash() const { return sensor->writeBack().flash; }
    std::string reason() const { return sensor->writeBack().reason.toStdString(); }

    CameraParameters parameters;
};

TEST_F(WriteBackTest, ComposesEachRotationBetweenTheRawFramesAndTouchesNothingElse) {
    open();
    KXCalibRectParameters expected = device->flash;
    const KXCalibRectParameters before = expected;
    const double third[9] = {0, 0, 1, 0, 1, 0, -1, 0, 0};
    const double platform[9] = {-1, 0, 0, 0, 0, -1, 0, -1, 0};
    std::memcpy(expected.reserved0, third, sizeof(third));
    std::memcpy(expected.reserved0 + 72, platform, sizeof(platform));

    ASSERT_TRUE(sensor->updateRotation(kAboutY, kAboutX));
    EXPECT_TRUE(flashIs(expected));
    EXPECT_EQ(device->calls, kWritingCalls);
    EXPECT_EQ(flash(), Flash::Written);
    EXPECT_THAT(emitted, IsEmpty());

    ParameterBackup backup;
    QString why;
    ASSERT_TRUE(readBackup(sensor->writeBack().backupFile, &backup, &why)) << why.toStdString();
    EXPECT_EQ(backup.serial, 550101U);
    EXPECT_TRUE(sameBytes(backup.block, before));
    ASSERT_TRUE(sensor->restoreParameters(backup.block));
    EXPECT_TRUE(flashIs(before));
}

TEST_F(WriteBackTest, ARotationThatDidNotMoveIsLeftAsItIs) {
    open();
    const KXCalibRectParameters before = device->flash;
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(sensor->updateRotation(kIdentity, kIdentity));
        EXPECT_TRUE(flashIs(before)) << "both as the module reported them";
    }
    EXPECT_THAT(device->calls, Not(Contains("writeRectParameters(1)"))) << "flash wears out";
    EXPECT_EQ(flash(), Flash::Written);
    ASSERT_TRUE(sensor->updateRotation(kAboutY, kIdentity));
    const KXCalibRectParameters moved = device->flash;
    EXPECT_EQ(std::memcmp(moved.reserved0 + 72, before.reserved0 + 72, 72), 0);
    ASSERT_TRUE(sensor->updateRotation(kAboutY, kIdentity)) << "now that is what the flash holds";
    EXPECT_TRUE(flashIs(moved));
    ASSERT_TRUE(sensor->updateRotation(kIdentity, kIdentity));
    EXPECT_FALSE(flashIs(moved));
}

TEST_F(WriteBackTest, RefusesWithoutTouchingTheDevice) {
    EXPECT_FALSE(sensor->updateRotation(kAboutX, kAboutX)) << "not open";
    ASSERT_TRUE(sensor->open(applicationSettings()));
    device->calls.clear();
    EXPECT_FALSE(sensor->updateRotation(kAboutX, kAboutX)) << "not read";
    EXPECT_THAT(reason(), StartsWith("Nothing is written to the camera: its parameters"));
    ASSERT_TRUE(readCameraParameters(*sensor, &parameters, [] {}));
    device->calls.clear();

    Rotation mirrored = kAboutX, stretched = kAboutX, zero{}, notANumber = kAboutX;
    mirrored[0] = -1;
    stretched[0] = 1.0002F;
    notANumber[4] = std::numeric_limits<float>::quiet_NaN();
    for (const Rotation& bad : {mirrored, stretched, zero, notANumber}) {
        EXPECT_FALSE(sensor->updateRotation(bad, kAboutX));
        EXPECT_FALSE(sensor->updateRotation(kAboutX, bad));
    }
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(emitted, IsEmpty());
    EXPECT_EQ(flash(), Flash::Untouched);
    Rotation nearly = kAboutX;
    nearly[0] = 1.00002F;
    EXPECT_TRUE(sensor->updateRotation(nearly, kAboutX));
}

TEST_F(WriteBackTest, WithoutAPlatformCalibrationItsRotationDoesNotMatter) {
    device->failCall("platformCamera", 1, 0);
    open();
    // This camera's part of the block was never written, which must prevent neither the write nor the backup.
    std::memset(device->flash.rectificationPlatform, 0xFF, sizeof(device->flash.rectificationPlatform));
    ASSERT_TRUE(sensor->updateRotation(kAboutY, Rotation{})) << reason();
    EXPECT_EQ(device->flash.reserved0[72], 0x5A);
    ParameterBackup backup;
    QString why;
    ASSERT_TRUE(readBackup(sensor->writeBack().backupFile, &backup, &why)) << why.toStdString();
    EXPECT_TRUE(sensor->restoreParameters(backup.block)) << reason();
}

TEST_F(WriteBackTest, NothingIsWrittenWhenThePreviousBlockCannotBeKept) {
    QFile inTheWay(data.filePath("backups"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    open();
    EXPECT_FALSE(sensor->updateRotation(kAboutY, kAboutX));
    EXPECT_THAT(device->calls, ElementsAre("stopCapture()", "rectParameters()", "resumeDevice()"));
    EXPECT_EQ(flash(), Flash::Untouched);
    EXPECT_THAT(reason(), StartsWith("The present calibration could not be kept: " + data.path().toStdString()));

    device->flash.rectificationInfrared[0] = 2;
    EXPECT_TRUE(inTheWay.remove());
    EXPECT_FALSE(sensor->updateRotation(kAboutY, kAboutX));
    EXPECT_EQ(reason(), "The present parameter block cannot be used: its infrared rectification is no rotation");
}

TEST_F(WriteBackTest, NothingIsSentToTheModuleOnANearlyEmptyBattery) {
    open();
    power = PowerState{false, 14};
    EXPECT_FALSE(sensor->updateRotation(kAboutY, kAboutX));
    EXPECT_FALSE(sensor->restoreParameters(device->flash));
    EXPECT_FALSE(sensor->rewriteParameters());
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_EQ(reason(), "Nothing is written to the camera: the battery holds less than 15 % and is not being charged");
    power->mains = true;
    EXPECT_TRUE(sensor->updateRotation(kAboutY, kAboutX)) << reason();
}

TEST_F(WriteBackTest, AStopEndsAGrabThatNeverReturnsWithoutAReport) {
    std::promise<void> release;
    const std::shared_future<void> released = release.get_future().share();
    open();
    std::atomic<bool> stop{false};
    sensor->setStopFlag(&stop);
    device->onGrab = [&stop, released] {
        stop = true;
        released.wait();
    };
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(sensor->grab(true));
    sensor.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
    EXPECT_THAT(emitted, IsEmpty());
    release.set_value();
    while (!device->destroyed)
        std::this_thread::yield();
}

}  // namespace
}  // namespace fieldcal::testing
