#include "tests/simulator/TestModule.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstring>

namespace {

using fieldcal::session::FramePictures;
using fieldcal::session::testPictures;
using ::testing::HasSubstr;

class Playback : public ModuleTest {
protected:
    static bool holds(const void* delivered, const fieldcal::ImageFrame& expected) {
        return delivered != nullptr && std::memcmp(delivered, expected.bytes(), expected.byteCount()) == 0;
    }
    static bool delivers(KXDevice* device, const FramePictures& expected) {
        return holds(device->leftImage(), expected.infrared) && holds(device->rightImage(), expected.infrared) &&
               holds(device->depthImage(), expected.depth) &&
               holds(device->thirdCamera()->thirdImage(), expected.third);
    }
    /// What opening a device says on standard error, and its status.
    std::pair<std::string, int> refusal() const {
        ::testing::internal::CaptureStderr();
        const std::shared_ptr<KXDevice> device = create();
        const bool opened = device->openDevice(-1);
        const std::string text = ::testing::internal::GetCapturedStderr();
        return {text, opened ? 0 : device->lastStatus()};
    }
};

TEST_F(Playback, IsBitExactWithRepeatsAndStartsAgain) {
    const FramePictures first = testPictures(session, true);
    FramePictures second = testPictures(session, false);
    second.depth.resize(5, 3);
    std::memset(second.depth.bytes(), 0, second.depth.byteCount());
    const std::shared_ptr<KXDevice> device = createCapturing();
    EXPECT_EQ(device->leftImage(), nullptr);
    for (int round = 0; round < 3; ++round) {
        const std::uint16_t* pixels = nullptr;
        for (int i = 0; i < 26; ++i) {
            ASSERT_TRUE(device->grab(true));
            ASSERT_TRUE(delivers(device.get(), first)) << round << " " << i;
            EXPECT_TRUE(i == 0 || device->leftImage() == pixels) << "a repeated frame must not be copied";
            pixels = device->leftImage();
        }
        ASSERT_TRUE(device->grab(false));
        ASSERT_TRUE(delivers(device.get(), second)) << round;
    }
}

TEST_F(Playback, SaysWhatTheRecordingHolds) {
    const std::shared_ptr<KXDevice> device = createReady();
    std::uint32_t serial = 0;
    EXPECT_TRUE(device->serialNumber(&serial));
    EXPECT_EQ(serial, 550101U);
    EXPECT_STREQ(device->firmwareVersionText(), "1.27.11");
    EXPECT_STREQ(device->softwareVersionText(), "2.2.0");
    EXPECT_EQ(device->lrWidth() * 1000 + device->lrHeight(), 6004);
    EXPECT_EQ(device->depthWidth() * 1000 + device->depthHeight(), 5003);
    EXPECT_EQ(device->thirdCamera()->thirdWidth() * 1000 + device->thirdCamera()->thirdHeight(), 8006);
    KXCalibIntrinsicsRectified infrared{};
    KXCalibIntrinsicsRectified third{};
    KXCalibExtrinsics extrinsics{};
    EXPECT_TRUE(device->rectifiedLRIntrinsics(&infrared) && device->thirdCamera()->rectifiedThirdIntrinsics(&third));
    EXPECT_TRUE(device->thirdCamera()->zToThirdExtrinsics(&extrinsics));
    EXPECT_EQ(infrared.fy, 580.5F);
    EXPECT_EQ(infrared.w, 6);
    EXPECT_EQ(third.cy, 3.2F);
    EXPECT_THAT(extrinsics.rotation, ::testing::ElementsAre(1, 0, 0, 0, 0, -1, 0, 1, 0));
    EXPECT_THAT(extrinsics.translation, ::testing::ElementsAre(25, 0.5F, -0.25F));
}

TEST_F(Playback, TheRectificationBlockHoldsRotations) {
    KXCalibRectParameters block{};
    ASSERT_TRUE(createReady()->rectParameters(&block));
    for (const float* m : {block.rectificationInfrared, block.rectificationThird, block.rectificationPlatform}) {
        for (int i = 0; i < 3; ++i) {
            const float* a = m + std::ptrdiff_t{3} * i;
            const float* b = m + std::ptrdiff_t{3} * ((i + 1) % 3);
            const float* c = m + std::ptrdiff_t{3} * ((i + 2) % 3);
            EXPECT_NEAR(a[0] * a[0] + a[1] * a[1] + a[2] * a[2], 1, 1e-6);
            // Right-handed: each row is the cross product of the next two.
            EXPECT_NEAR(b[1] * c[2] - b[2] * c[1], a[0], 1e-6);
            EXPECT_NEAR(b[2] * c[0] - b[0] * c[2], a[1], 1e-6);
            EXPECT_NEAR(b[0] * c[1] - b[1] * c[0], a[2], 1e-6);
        }
    }
}

TEST_F(Playback, ThePlatformCameraIsTheRecordings) {
    const std::shared_ptr<KXDevice> device = createReady();
    KXPlatformCamera* platform = device->platformCamera();
    ASSERT_NE(platform, nullptr);
    KXCalibIntrinsicsNonRectified raw{};
    KXCalibIntrinsicsRectified rectified{};
    KXCalibExtrinsics extrinsics{};
    EXPECT_FALSE(platform->nonRectifiedIntrinsics(&raw)) << "no mode was set";
    EXPECT_FALSE(platform->setPlatformMode(0, 640, 480));
    EXPECT_TRUE(platform->setPlatformMode(0, 1280, 720) && platform->nonRectifiedIntrinsics(&raw));
    EXPECT_FALSE(platform->rectifiedIntrinsics(&rectified)) << "raw mode";
    EXPECT_TRUE(platform->setPlatformMode(1, 1280, 720) && platform->rectifiedIntrinsics(&rectified));
    EXPECT_TRUE(platform->zToPlatformExtrinsics(&extrinsics));
    EXPECT_EQ(raw.k3, 0.02F);
    EXPECT_EQ(rectified.cx, 639);
    EXPECT_EQ(extrinsics.translation[0], -60);
    EXPECT_EQ(platform->rectificationRotation()[1], -1);
    session.platform.reset();
    session.frames[0].platform.clear();
    ASSERT_TRUE(writeDescription(folder, session, &why)) << why;
    EXPECT_EQ(createReady()->platformCamera(), nullptr);
}

TEST_F(Playback, AnInvalidCalibrationTellsNothing) {
    session.module.calibrationValid = false;
    ASSERT_TRUE(writeDescription(folder, session, &why)) << why;
    const std::shared_ptr<KXDevice> device = createCapturing();
    KXCalibIntrinsicsRectified intrinsics{};
    EXPECT_FALSE(device->calibrationValid());
    EXPECT_FALSE(device->zIntrinsics(&intrinsics));
    EXPECT_EQ(device->lastStatus(), 4);
    EXPECT_TRUE(device->grab(true));
}

TEST_F(Playback, BadSessionsAndSettingsAreRefusedInOneLine) {
    using fieldcal::session::writeFile;
    writeFile(path("b_third.png"), "no picture");
    EXPECT_EQ(refusal(), std::make_pair("KXAPI: " + path("b_third.png") + ": frames[1].third: not a PNG picture\n", 6));
    set("KXSIM_SESSION", folder + "/nowhere");
    EXPECT_EQ(refusal().second, 6);
    set("KXSIM_SESSION", "");
    set("KXSIM_WORLD", "moon");
    EXPECT_NE(refusal().second, 0);
    set("KXSIM_SESSION", folder);
    for (const char* speed : {"-1", "fast", "1e9", "nan", "0.001"}) {
        set("KXSIM_SPEED", speed);
        EXPECT_THAT(refusal().first, HasSubstr(speed));
        EXPECT_EQ(refusal().second, 1);
    }
    set("KXSIM_SPEED", "1");
    const std::pair<const char*, const char*> malformed[]{{"KXSIM_PLATFORM", "perhaps"},
                                                          {"KXSIM_SEED", "-1"},
                                                          {"KXSIM_DRIFT", "1,2"},
                                                          {"KXSIM_PLATFORM_DRIFT", "1,2,nan"}};
    for (const auto& [variable, value] : malformed) {
        set(variable, value);
        EXPECT_THAT(refusal().first, HasSubstr(variable));
        EXPECT_EQ(refusal().second, 1);
        set(variable, "");
    }
}

TEST_F(Playback, APictureThatTurnsOutBadEndsItsGrab) {
    FramePictures bad = testPictures(session, false);
    bad.infrared.pixels()[3] = 2000;
    ASSERT_TRUE(writePictures(folder, session.frames[1], bad, &why)) << why;
    const std::shared_ptr<KXDevice> device = createCapturing();
    for (int i = 0; i < 26; ++i)
        ASSERT_TRUE(device->grab(true));
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(device->grab(true));
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("frames[1].infrared: infrared value 2000"));
    EXPECT_EQ(device->lastStatus(), 6);
    EXPECT_TRUE(delivers(device.get(), testPictures(session, true))) << "the last frame stays";
}

TEST_F(Playback, KeepsThePaceItIsAskedFor) {
    using Clock = std::chrono::steady_clock;
    set("KXSIM_SPEED", "2");
    const std::shared_ptr<KXDevice> device = createCapturing();
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < 13; ++i)
        ASSERT_TRUE(device->grab(true));
    // Some systems' clocks are a little behind their sleep.
    EXPECT_GE(std::chrono::duration<double>(Clock::now() - start).count(), 12 / 120.0 - 0.005);
    // Without waiting, a grab before its time leaves the current frame.
    int grabs = 13;
    for (; device->depthImage()[0] != 0; ++grabs)
        ASSERT_TRUE(device->grab(false));
    EXPECT_GT(grabs, 27);
}

TEST_F(Playback, DevicesComeAndGoAndReadTheEnvironmentAtBirth) {
    for (int i = 0; i < 20; ++i) {
        const std::shared_ptr<KXDevice> device = createCapturing();
        ASSERT_TRUE(device->grab(true));
    }
    const std::shared_ptr<KXDevice> before = create();
    set("KXSIM_SESSION", folder + "/nowhere");
    EXPECT_TRUE(before->openDevice(-1));
    EXPECT_FALSE(create()->openDevice(-1));
    library.reset();
    library = KXLibrary::load(&why);
    ASSERT_NE(library, nullptr);
    EXPECT_TRUE(before->initDevice());
}

}  // namespace
