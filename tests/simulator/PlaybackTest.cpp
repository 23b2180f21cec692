#include "kxapi/SharedLibrary.h"
#include "tests/simulator/TestModule.h"

#include <QFileInfo>
#include <gmock/gmock.h>

#include <chrono>
#include <cstring>
#if !defined(_WIN32)
#include <unistd.h>
#endif

namespace {

using fieldcal::session::FrameImages;
using fieldcal::session::testImages;
using ::testing::HasSubstr;
using ::testing::Not;

class Playback : public ModuleTest {
protected:
    static bool holds(const void* delivered, const fieldcal::ImageFrame& expected) {
        if (delivered == nullptr || expected.empty()) return delivered == nullptr && expected.empty();
        return std::memcmp(delivered, expected.bytes(), expected.byteCount()) == 0;
    }
    static bool delivers(KXDevice* device, const FrameImages& expected) {
        return holds(device->leftImage(), expected.infrared) && holds(device->rightImage(), expected.right) &&
               holds(device->depthImage(), expected.depth) &&
               holds(device->thirdCamera()->thirdImage(), expected.third);
    }
};

TEST_F(Playback, IsBitExactWithRepeatsAndStartsAgain) {
    const FrameImages first = testImages(session, true);
    FrameImages second = testImages(session, false);
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
        EXPECT_TRUE(device->rightEnabled()) << "there is a stream, only without a picture of this frame";
        EXPECT_EQ(device->lastStatus(), 0);
    }
}

TEST_F(Playback, AStreamIsDroppedFrozenOrDelayedOnOrder) {
    // Right images that differ, and none in the last frame.
    session.frames = {session.frames[0], session.frames[0], session.frames[1]};
    session.frames[0].repeat = 4;
    session.frames[1].right = "other.png";
    session.frames[1].repeat = 5;
    FrameImages shown[]{testImages(session, true), testImages(session, true), testImages(session, false)};
    shown[1].right.pixels()[7] = 5;
    ASSERT_TRUE(writeDescription(folder, session, &why) && writeImages(folder, session.frames[1], shown[1], &why));
    const fieldcal::ImageFrame16 none;
    fieldcal::ImageFrame16 blank = shown[0].right;
    std::fill_n(blank.pixels(), blank.byteCount() / 2, std::uint16_t{400});
    const auto own = [&](int grab) { return &shown[grab % 10 < 4 ? 0 : grab % 10 < 9 ? 1 : 2].right; };
    const auto expect = [&](const char* variable, const char* value, const auto& expected) {
        set("KXSIM_RIGHT", "");
        set("KXSIM_FAULTS", "");
        set(variable, value);
        const std::shared_ptr<KXDevice> device = createCapturing();
        EXPECT_EQ(device->rightImage(), nullptr);
        for (int grab = 0; grab < 22; ++grab) {
            ASSERT_TRUE(device->grab(true));
            ASSERT_TRUE(holds(device->rightImage(), *expected(grab))) << value << ' ' << grab;
            ASSERT_TRUE(holds(device->leftImage(), shown[0].infrared) && device->rightEnabled());
        }
        EXPECT_EQ(device->lastStatus(), 0);
    };
    expect("KXSIM_RIGHT", "real", own);
    expect("KXSIM_RIGHT", "blank", [&](int) { return &blank; });
    expect("KXSIM_RIGHT", "left", [&](int) { return &shown[0].infrared; });
    expect("KXSIM_FAULTS", "right:1:drop", [&](int) { return &none; });
    expect("KXSIM_FAULTS", "right:3:drop+4", [&](int grab) { return grab < 2 || grab > 5 ? own(grab) : &none; });
    expect("KXSIM_FAULTS", "right:5:freeze", [&](int grab) { return grab < 4 ? own(grab) : &shown[1].right; });
    expect("KXSIM_FAULTS", "right:1:late+6", [&](int grab) { return grab < 6 ? &none : own(grab - 6); });
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
    EXPECT_EQ(opening(), std::make_pair("KXAPI: " + path("b_third.png") + ": frames[1].third: not a PNG picture\n", 6));
    set("KXSIM_SESSION", folder + "/nowhere");
    EXPECT_EQ(opening().second, 6);
    set("KXSIM_SESSION", "");
    set("KXSIM_WORLD", "moon");
    EXPECT_NE(opening().second, 0);
    set("KXSIM_SESSION", folder);
    for (const char* speed : {"-1", "fast", "1e9", "nan", "0.001"}) {
        set("KXSIM_SPEED", speed);
        EXPECT_THAT(opening().first, HasSubstr(speed));
        EXPECT_EQ(opening().second, 1);
    }
    set("KXSIM_SPEED", "1");
    const std::pair<const char*, const char*> malformed[]{{"KXSIM_PLATFORM", "perhaps"},
                                                          {"KXSIM_RIGHT", "upside down"},
                                                          {"KXSIM_SEED", "-1"},
                                                          {"KXSIM_DRIFT", "1,2"},
                                                          {"KXSIM_PLATFORM_DRIFT", "1,2,nan"}};
    for (const auto& [variable, value] : malformed) {
        set(variable, value);
        EXPECT_THAT(opening().first, HasSubstr(variable));
        EXPECT_EQ(opening().second, 1);
        set(variable, "");
    }
}

TEST_F(Playback, APictureThatTurnsOutBadEndsItsGrab) {
    FrameImages bad = testImages(session, false);
    bad.infrared.pixels()[3] = 2000;
    ASSERT_TRUE(writeImages(folder, session.frames[1], bad, &why)) << why;
    const std::shared_ptr<KXDevice> device = createCapturing();
    for (int i = 0; i < 26; ++i)
        ASSERT_TRUE(device->grab(true));
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(device->grab(true));
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("frames[1].infrared: infrared value 2000"));
    EXPECT_EQ(device->lastStatus(), 6);
    EXPECT_TRUE(delivers(device.get(), testImages(session, true))) << "the last frame stays";
}

TEST_F(Playback, WhatReadingAcceptsIsPlayedHoweverOddItIs) {
    for (const double cx : {-1e5, 1e5}) {
        session.infrared.fx = session.third.fy = 1;
        session.infrared.cx = session.depth.cy = session.third.cx = cx;
        session.platform->raw = {{1280, 720, 1, 1e5, cx, -cx}, 100, -100, 100, -100, 100};
        session.platform->rectified = {1280, 720, 1e5, 1, -cx, cx};
        session.platform->translation = {cx, 0, -cx};
        ASSERT_TRUE(writeDescription(folder, session, &why)) << why;
        const std::shared_ptr<KXDevice> device = createCapturing();
        KXPlatformCamera* platform = device->platformCamera();
        ASSERT_NE(platform, nullptr);
        EXPECT_TRUE(platform->setPlatformMode(1, 1280, 720));
        for (int i = 0; i < 30; ++i)
            ASSERT_TRUE(device->grab(true));
        EXPECT_EQ(device->lastStatus(), 0);
    }
}

TEST_F(Playback, KeepsThePaceItIsAskedFor) {
    using Clock = std::chrono::steady_clock;
    set("KXSIM_SPEED", "2");
    const std::shared_ptr<KXDevice> device = createCapturing();
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < 13; ++i)
        ASSERT_TRUE(device->grab(true));
    // On some systems the clock is slightly behind the sleep.
    EXPECT_GE(std::chrono::duration<double>(Clock::now() - start).count(), 12 / 120.0 - 0.005);
    // Without waiting, an early grab keeps the current frame.
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

#if !defined(_WIN32)
TEST(Loader, AnAdapterBesideTheProgramComesFirst) {
    // A unique name, because other programs run from this folder at the same time.
    const QString folder = QFileInfo(QFile::symLinkTarget("/proc/self/exe")).path();
    const std::string name = "AdapterProbe" + std::to_string(getpid());
    const QString adapter = folder + "/lib" + QString::fromStdString(name) + "Adapter.so";
    std::string why;
    EXPECT_EQ(kxapi::openSharedLibrary(name.c_str(), kxapi::LibrarySearch::Installed, &why), nullptr);
    EXPECT_THAT(why, Not(HasSubstr("Adapter.so")));
    fieldcal::session::writeFile(adapter.toStdString(), "broken");
    EXPECT_EQ(kxapi::openSharedLibrary(name.c_str(), kxapi::LibrarySearch::Installed, &why), nullptr);
    EXPECT_THAT(why, HasSubstr(adapter.toStdString())) << "and a broken one is named";
    QFile::remove(adapter);
}
#endif

}  // namespace
