#include "devices/PlatformCameraSetup.h"
#include "devices/windows/MFStreamingSampleCallback.h"
#include "devices/windows/MediaFoundationBackend.h"
#include "tests/devices/LogCapture.h"
#include "tests/devices/windows/FakeCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr auto kPreview = static_cast<DWORD>(MF_CAPTURE_ENGINE_PREFERRED_SOURCE_STREAM_FOR_VIDEO_PREVIEW);
constexpr auto kRecord = static_cast<DWORD>(MF_CAPTURE_ENGINE_PREFERRED_SOURCE_STREAM_FOR_VIDEO_RECORD);
constexpr auto kPhoto = static_cast<DWORD>(MF_CAPTURE_ENGINE_PREFERRED_SOURCE_STREAM_FOR_PHOTO);
const GUID kDeviceTimestamp = {0x8f3e35e7, 0x2dcd, 0x4887, {0x86, 0x22, 0x2a, 0x58, 0xba, 0xa6, 0x52, 0xb0}};

ComPtr<IMFSample> sampleOf(DWORD bytes, BYTE value) {
    ComPtr<IMFSample> sample;
    ComPtr<IMFMediaBuffer> buffer;
    BYTE* memory = nullptr;
    MFCreateSample(sample.GetAddressOf());
    MFCreateMemoryBuffer(bytes, buffer.GetAddressOf());
    buffer->Lock(&memory, nullptr, nullptr);
    std::fill_n(memory, bytes, value);
    buffer->Unlock();
    buffer->SetCurrentLength(bytes);
    sample->AddBuffer(buffer.Get());
    return sample;
}

class MediaFoundationTest : public ::testing::Test {
protected:
    MediaFoundationTest() {
        camera.types[kPreview] = {{MFVideoFormat_NV12, 640, 480, 30}};
        camera.types[kRecord] = {{MFVideoFormat_NV12, 1280, 720, 15},
                                 {MFVideoFormat_MJPG, 1280, 720, 30},
                                 {MFVideoFormat_NV12, 1280, 720, 30},
                                 {MFVideoFormat_NV12, 1920, 1080, 30}};
        camera.types[kPhoto] = {{MFVideoFormat_MJPG, 3200, 2400, 5}};
        control = std::make_unique<CPlatformCameraControl>(
            std::make_unique<MediaFoundationBackend>([this] { return std::make_unique<FakeMediaSystem>(camera); }));
    }

    LogCapture log;
    FakeCapture camera;
    std::unique_ptr<CPlatformCameraControl> control;
};

TEST_F(MediaFoundationTest, FindsOpensStreamsAndEndsOnOneThread) {
    ASSERT_EQ(setUpPlatformCamera(*control), PlatformSetup::Ready);
    EXPECT_THAT(
        camera.calls,
        ElementsAre("startUp", "enumerate", "enumerate", "createSource link 1", "createCaptureEngine",
                    "createAttributes", "Initialize", "QueryInterface amplifier", "QueryInterface control",
                    "brightness.Get 0", "brightness.Set 0 1234 1", "focus.Get 6", "focus.Set 6 1234 1", "focus.Get 6",
                    "focus.Set 6 1234 2", "focus.Set 6 1700 2",  // automatic, then by hand
                    "GetSource", "GetSink", "preview.RemoveAllStreams", "SetCurrentDeviceMediaType NV12 640x480@30",
                    "createMediaType", "preview.AddStream NV12 640x480@30", "preview.SetSampleCallback", "GetSink",
                    "record.RemoveAllStreams", "SetCurrentDeviceMediaType NV12 1280x720@30", "createMediaType",
                    "record.AddStream NV12 1280x720@30", "record.SetSampleCallback 7", "StartRecord", "GetSink",
                    "photo.RemoveAllStreams", "SetCurrentDeviceMediaType MJPG 3200x2400@5", "createMediaType",
                    "photo.AddStream NV12 3200x2400@0", "photo.SetSampleCallback"));
    camera.calls.clear();
    const ComPtr<IMFCaptureEngineOnSampleCallback> late = camera.recordCallback;
    camera.recordCallback.Reset();
    // Images arrive on a thread of the engine, and more of them than are taken.
    std::thread([&] {
        for (int i = 1; i <= 200; ++i)
            EXPECT_EQ(late->OnSample(sampleOf(1280 * 720 * 3 / 2, static_cast<BYTE>(i)).Get()), S_OK);
    }).join();
    EXPECT_TRUE(control->frameReady());
    QueuedImage image;
    ASSERT_TRUE(control->latestFrame(&image, 10));
    EXPECT_EQ(image.pixels[1280 * 720 * 3 / 2 - 1], 200);
    EXPECT_EQ(image.width, 1280);
    EXPECT_EQ(image.height, 720);

    std::thread([this] { control.reset(); }).join();
    EXPECT_THAT(camera.calls, ElementsAre("StopRecord", "Shutdown", "shutDown"));
    EXPECT_EQ(camera.alive, 0);
    EXPECT_EQ(std::set<std::thread::id>(camera.threads.begin(), camera.threads.end()).size(), 1U);
    EXPECT_NE(camera.threads.front(), std::this_thread::get_id());
    EXPECT_EQ(late->OnSample(sampleOf(1280 * 720 * 3 / 2, 1).Get()), S_OK) << "a late image finds nobody";
}

TEST_F(MediaFoundationTest, EveryFailingCallFailsTheStepAndIsLogged) {
    ASSERT_EQ(setUpPlatformCamera(*control), PlatformSetup::Ready);
    control.reset();
    std::set<std::string> names;
    for (const std::string& call : camera.calls)
        names.insert(call.compare(0, 14, "QueryInterface") == 0 ? call : call.substr(0, call.find(' ')));
    const auto types = camera.types;
    for (const std::string& name : names) {
        if (name == "StopRecord" || name == "Shutdown" || name == "shutDown") continue;
        SCOPED_TRACE(name);
        LogCapture::lines().clear();
        FakeCapture failing;
        failing.types = types;
        failing.failing = name;
        {
            CPlatformCameraControl broken(std::make_unique<MediaFoundationBackend>(
                [&failing] { return std::make_unique<FakeMediaSystem>(failing); }));
            EXPECT_NE(setUpPlatformCamera(broken), PlatformSetup::Ready);
        }
        ASSERT_GE(LogCapture::lines().size(), 2U);
        EXPECT_THAT(LogCapture::lines().front(), HasSubstr("failed (0x80004005)"));
        EXPECT_THAT(LogCapture::lines().back(), HasSubstr("External platform camera "));
        failing.recordCallback.Reset();
        EXPECT_EQ(failing.alive, 0);
    }
}

TEST_F(MediaFoundationTest, OpeningEndsWithTheEnginesError) {
    for (const auto answer : {FakeCapture::Answer::Error, FakeCapture::Answer::InitialisedWithFailure}) {
        FakeCapture failing;
        failing.answer = answer;
        CPlatformCameraControl broken(std::make_unique<MediaFoundationBackend>(
            [&failing] { return std::make_unique<FakeMediaSystem>(failing); }));
        EXPECT_TRUE(broken.findDevice(kPlatformCameraName));
        EXPECT_FALSE(broken.openCamera());
        EXPECT_THAT(LogCapture::lines().back(), HasSubstr("(0x80070005)"));
    }
    EXPECT_FALSE(control->findDevice("HP Truevision"));
    EXPECT_FALSE(control->openCamera());
}

TEST_F(MediaFoundationTest, TheSizeDecidesThenTheRateThenTheSubtype) {
    camera.oneStreamForAll = true;
    camera.types[kRecord] = {{MFVideoFormat_NV12, 1280, 720, 10}, {MFVideoFormat_YUY2, 1280, 720, 30}};
    EXPECT_EQ(setUpPlatformCamera(*control), PlatformSetup::Ready);
    EXPECT_THAT(camera.calls, ::testing::Contains("SetCurrentDeviceMediaType YUY2 1280x720@30"));
    EXPECT_EQ(camera.calls.back(), "photo.RemoveAllStreams") << "photos must not change the record stream's size";

    for (const DWORD stream : {kPreview, kRecord}) {
        FakeCapture other;
        other.types = camera.types;
        other.types[stream] = {{MFVideoFormat_NV12, 1281, 720, 30}, {MFVideoFormat_NV12, 640, 481, 30}};
        CPlatformCameraControl without(
            std::make_unique<MediaFoundationBackend>([&other] { return std::make_unique<FakeMediaSystem>(other); }));
        EXPECT_EQ(setUpPlatformCamera(without), PlatformSetup::Issue);
    }
}

struct ReceivedImage : RearCameraSink {
    void onImage(const std::uint8_t* nv12, std::int32_t, std::int32_t, double timeSeconds) override {
        seconds.push_back(timeSeconds);
        first.push_back(nv12[0]);
    }
    std::vector<double> seconds;
    std::vector<int> first;
};

TEST_F(MediaFoundationTest, SamplesCarryTheDevicesTime) {
    const auto outlet = std::make_shared<ImageOutlet>();
    ReceivedImage kept;
    outlet->set(&kept);
    const auto callback = makeCom<MFStreamingSampleCallback>(outlet, 4, 2);
    EXPECT_EQ(callback->OnSample(nullptr), static_cast<HRESULT>(0x80070006));

    const ComPtr<IMFSample> sample = sampleOf(12, 9);
    sample->SetSampleTime(25000000);
    EXPECT_EQ(callback->OnSample(sample.Get()), S_OK);
    sample->SetUINT64(kDeviceTimestamp, 0x8000000000000000U);
    EXPECT_EQ(callback->OnSample(sample.Get()), S_OK);
    EXPECT_THAT(kept.seconds, ElementsAre(2.5, 922337203685.4775808));
    EXPECT_THAT(kept.first, ElementsAre(9, 9));

    EXPECT_EQ(callback->OnSample(sampleOf(11, 9).Get()), S_OK);
    EXPECT_EQ(kept.first.size(), 2U) << "too short for its size";
    ComPtr<IMFSample> empty;
    MFCreateSample(empty.GetAddressOf());
    ::testing::internal::CaptureStdout();
    EXPECT_TRUE(FAILED(callback->OnSample(empty.Get())));
    std::fflush(stdout);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "Failed to get the media buffer 3\n");
}

/// Wine has Media Foundation, but it can neither list nor open devices and has no capture engine.
TEST_F(MediaFoundationTest, TheSystemsOwnIsReachedAsFarAsItGoes) {
    ComThread thread;
    const auto system = windowsMediaSystem();
    thread.run([&] {
        std::vector<VideoDevice> devices;
        EXPECT_EQ(system->startUp(), S_OK);
        EXPECT_EQ(system->enumerate(&devices), S_OK);
        ComPtr<IMFCaptureEngine> engine;
        EXPECT_EQ(system->createCaptureEngine(engine.GetAddressOf()), REGDB_E_CLASSNOTREG);
        system->shutDown();
        return true;
    });
    MediaFoundationBackend backend(windowsMediaSystem);
    EXPECT_FALSE(backend.selectDevice("a camera that nobody has"));
    EXPECT_FALSE(backend.openCamera());
}

}  // namespace
}  // namespace fieldcal::testing
