#include "devices/CameraParameterReader.h"
#include "devices/ColourConversion.h"
#include "tests/devices/SensorFixture.h"

#include <opencv2/imgproc.hpp>

#include <array>
#include <random>
#include <thread>

namespace fieldcal::testing {
namespace {

using std::chrono::milliseconds;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A straightforward reference implementation: resize, swap pixel by pixel, set alpha.
std::vector<std::uint8_t> slowReference(const cv::Mat& bgra, int width, int height) {
    cv::Mat scaled = bgra.clone();
    if (scaled.size() != cv::Size(width, height)) cv::resize(bgra, scaled, {width, height}, 0, 0, cv::INTER_LINEAR);
    std::vector<std::uint8_t> rgba;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto& p = scaled.at<cv::Vec4b>(y, x);
            rgba.insert(rgba.end(), {p[2], p[1], p[0], 255});
        }
    }
    return rgba;
}

std::vector<std::uint8_t> bytesOf(const ImageFrame& frame) {
    return {frame.bytes(), frame.bytes() + frame.byteCount()};
}

TEST(ColourConversion, EqualsTheSlowReference) {
    std::mt19937 random(7);
    cv::Mat bgra(48, 64, CV_8UC4);
    std::generate(bgra.data, bgra.data + bgra.total() * 4, [&] { return static_cast<std::uint8_t>(random()); });
    cv::Mat scaled;
    ImageFrame32 record;
    for (const auto& [width, height] : {std::pair{80, 60}, {64, 48}, {31, 23}, {32, 24}, {1, 1}, {65, 48}}) {
        SCOPED_TRACE(width);
        scaleIntoRecord(bgra, width, height, &scaled, &record);
        EXPECT_EQ(bytesOf(record), slowReference(bgra, width, height));
    }
}

class FrameAcquisitionTest : public SensorTest {
protected:
    void openAndRead(const SensorSettings& settings) {
        ASSERT_TRUE(sensor->open(settings));
        CameraParameters parameters;
        ASSERT_TRUE(readCameraParameters(*sensor, &parameters, [] {}));
    }
    bool grabAfter(milliseconds elapsed) {
        now += elapsed;
        return sensor->grab(true);
    }
    void deliverRed(std::int32_t width = 1280) const { rearCamera.deliver(81, 90, 240, width); }

    /// Returns the rear record's first pixel; empty when the record is empty.
    std::vector<int> rearPixel() {
        const ImageFrame32& record = sensor->frames().colour[ColourCamera::Platform];
        return record.empty() ? std::vector<int>{} : std::vector<int>(record.bytes(), record.bytes() + 4);
    }
    /// Fills the rear record, so that the test sees whether a grab writes to it.
    void markRearRecord() {
        const auto& record = sensor->frames().colour[ColourCamera::Platform];
        std::fill_n(const_cast<std::uint8_t*>(record.bytes()), record.byteCount(), std::uint8_t{99});
    }
};

TEST_F(FrameAcquisitionTest, RefreshesTheModulesRecords) {
    for (std::size_t i = 0; i < device->thirdPixels.size(); ++i)
        device->thirdPixels[i] = static_cast<std::uint8_t>(i * 7);
    openAndRead(withoutPlatform());
    device->depth[3] = 4321;
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_EQ(device->calls.back(), "grab(1)");
    const FrameRecords& frames = sensor->frames();
    EXPECT_EQ(frames.depth.pixels()[3], 4321);
    EXPECT_EQ(frames.leftInfrared.pixels()[628 * 468 - 1], 500);
    EXPECT_EQ(frames.rightInfrared.pixels()[0], 501);
    const cv::Mat third(480, 640, CV_8UC4, device->thirdPixels.data());
    EXPECT_EQ(bytesOf(frames.colour[ColourCamera::Third]), slowReference(third, 320, 240));
    EXPECT_TRUE(frames.colour[ColourCamera::Platform].empty());

    device->thirdPixels[640 * 480 * 4 - 2] ^= 0xF0;  // red of the last pixel
    EXPECT_TRUE(sensor->grab(false));
    EXPECT_EQ(device->calls.back(), "grab(0)");
    EXPECT_EQ(bytesOf(frames.colour[ColourCamera::Third]), slowReference(third, 320, 240))
        << "the smallest change is seen";
}

TEST_F(FrameAcquisitionTest, StreamsThatAreOffOrOddAreSkipped) {
    openAndRead(withoutPlatform());
    device->failCall("grab", 6, 6);
    ASSERT_TRUE(sensor->grab(true));
    device->depthOn = device->thirdOn = false;
    device->depth[0] = 1;
    device->thirdPixels.assign(device->thirdPixels.size(), 1);
    EXPECT_TRUE(sensor->grab(true));
    device->thirdOn = true;
    device->thirdWidthValue = 0;
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_EQ(sensor->frames().depth.pixels()[0], 1502);
    EXPECT_EQ(sensor->frames().colour[ColourCamera::Third].bytes()[0], 77);
    EXPECT_EQ(sensor->frames().rightInfrared.pixels()[5], 501);
    std::vector<std::uint16_t> right;
    std::swap(device->right, right);
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_TRUE(sensor->frames().rightInfrared.empty()) << "an old image is not left for a new one";
    std::swap(device->right, right);
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_EQ(sensor->frames().rightInfrared.byteCount(), std::size_t{628} * 468 * 2);
    device->left.assign(device->left.size(), 9);
    EXPECT_FALSE(sensor->grab(true));
    EXPECT_EQ(sensor->frames().leftInfrared.pixels()[0], 500) << "a failed grab leaves the records";

    renew();
    ASSERT_TRUE(sensor->open(withoutPlatform()));
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_EQ(sensor->frames().leftInfrared.pixels()[0], 500);
    EXPECT_EQ(sensor->frames().colour[ColourCamera::Third].width(), 640U) << "without a scaled size it is not filled";
}

TEST_F(FrameAcquisitionTest, PicturesOfDifferentMomentsAreNoPair) {
    openAndRead(applicationSettings());
    std::uint8_t luma = 20;
    const auto grabbed = [&](bool infrared, bool third, bool rear) {
        device->left[9] = static_cast<std::uint16_t>(device->left[9] + (infrared ? 1 : 0));
        device->thirdPixels[9] = static_cast<std::uint8_t>(device->thirdPixels[9] + (third ? 1 : 0));
        if (rear) rearCamera.deliver(++luma, 128, 128);
        EXPECT_TRUE(grabAfter(milliseconds(16)));
        return std::pair(sensor->isFreshPair(ColourCamera::Third), sensor->isFreshPair(ColourCamera::Platform));
    };
    EXPECT_EQ(grabbed(true, true, true), std::pair(true, true));
    EXPECT_EQ(grabbed(true, false, false), std::pair(false, false)) << "every other colour image is the one before";
    EXPECT_EQ(grabbed(true, true, false), std::pair(true, false));
    EXPECT_EQ(grabbed(true, false, true), std::pair(false, true));
    EXPECT_EQ(grabbed(false, true, false), std::pair(false, true)) << "a frozen infrared image is as bad";
    EXPECT_EQ(grabbed(true, true, true), std::pair(true, true));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(grabbed(false, false, false), std::pair(true, true)) << "a still goes on being one";
    rearCamera.deliver(luma, 128, 128);
    EXPECT_EQ(grabbed(true, true, false), std::pair(true, false)) << "the same image again";

    EXPECT_EQ(grabbed(true, true, true), std::pair(true, true));
    std::vector<std::uint16_t> none;
    std::swap(device->left, none);
    std::vector<std::uint16_t> noDepth;
    std::swap(device->depth, noDepth);
    EXPECT_TRUE(grabAfter(milliseconds(100)));
    EXPECT_TRUE(sensor->isFreshPair(ColourCamera::Third));
    EXPECT_FALSE(sensor->frames().depth.empty());
    EXPECT_TRUE(grabAfter(milliseconds(1)));
    EXPECT_FALSE(sensor->isFreshPair(ColourCamera::Third)) << "101 ms";
    EXPECT_TRUE(sensor->frames().depth.empty());
}

TEST_F(FrameAcquisitionTest, ASilentStartOfTheRearCameraIsReportedEveryTime) {
    openAndRead(applicationSettings());
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_THAT(emitted, ElementsAre("PlatformIssue", "PlatformIssue"));
    EXPECT_EQ(sensor->frames().leftInfrared.pixels()[0], 500);
    EXPECT_THAT(rearPixel(), IsEmpty());
    device->onGrab = [this] { deliverRed(); };
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_EQ(emitted.size(), 2U) << "an image that arrives within the grab is in time";
    EXPECT_EQ(sensor->frames().colour[ColourCamera::Platform].width(), 640U);

    renew();
    openAndRead(applicationSettings());
    deliverRed(640);
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_THAT(rearPixel(), ElementsAre(0, 0, 0, 255)) << "one of another size is none";
    EXPECT_EQ(sensor->platformNv12(), nullptr);
}

TEST_F(FrameAcquisitionTest, ARearCameraThatTakesTimeToStartIsAwaitedOnce) {
    rearCamera.firstImageMs = 60000;
    std::thread camera;
    rearCamera.onAwaited = [&] {
        camera = std::thread([this] {
            std::this_thread::sleep_for(milliseconds(30));
            deliverRed();
        });
    };
    openAndRead(applicationSettings());
    ASSERT_TRUE(camera.joinable());
    camera.join();
    EXPECT_TRUE(sensor->grab(true));
    EXPECT_FALSE(rearPixel().empty());
    EXPECT_THAT(emitted, IsEmpty());

    renew();
    std::atomic<bool> stop{false};
    sensor->setStopFlag(&stop);
    rearCamera.onAwaited = [&] { stop = true; };
    EXPECT_FALSE(sensor->open(applicationSettings())) << "leaving does not wait for the camera";
    EXPECT_THAT(emitted, IsEmpty());
    sensor.reset();
}

TEST_F(FrameAcquisitionTest, EachRearPictureIsWorkedOnOnce) {
    openAndRead(applicationSettings());
    deliverRed();
    ASSERT_TRUE(grabAfter(milliseconds(0)));
    ASSERT_NE(sensor->platformNv12(), nullptr);
    EXPECT_EQ(sensor->platformNv12()[0], 81);
    EXPECT_EQ(sensor->platformNv12()[1280 * 1080 - 1], 240);
    const std::vector<int> red = rearPixel();
    EXPECT_NEAR(red[0], 255, 2);
    EXPECT_NEAR(red[2], 0, 2);
    EXPECT_EQ(red[3], 255);
    markRearRecord();
    ASSERT_TRUE(grabAfter(milliseconds(16)));
    EXPECT_THAT(rearPixel(), Each(99)) << "nothing new: the record is not touched, least of all swapped back";
    EXPECT_EQ(sensor->platformNv12(), nullptr);

    sensor->setPlatformImageWanted(false);
    for (int i = 0; i < 9; ++i)
        deliverRed();
    rearCamera.deliver(235, 128, 128);
    grabAfter(milliseconds(2000));
    EXPECT_THAT(rearPixel(), Each(99));
    sensor->setPlatformImageWanted(true);
    grabAfter(milliseconds(16));
    EXPECT_THAT(rearPixel(), Each(255)) << "the newest of those that came meanwhile";
    EXPECT_EQ(FakeLibrary::rectifyCalls, 2);
}

TEST_F(FrameAcquisitionTest, ASilentSecondTurnsTheRecordBlackUntilTheNextPicture) {
    openAndRead(applicationSettings());
    deliverRed();
    ASSERT_TRUE(grabAfter(milliseconds(0)));
    const std::vector<int> red = rearPixel();
    for (int i = 0; i < 9; ++i)
        grabAfter(milliseconds(100));
    grabAfter(milliseconds(99));
    EXPECT_EQ(rearPixel(), red) << "999 ms";
    grabAfter(milliseconds(1));
    EXPECT_THAT(rearPixel(), ElementsAre(0, 0, 0, 255));
    markRearRecord();
    grabAfter(milliseconds(16));
    EXPECT_THAT(rearPixel(), Each(99)) << "black is not written again";

    deliverRed();
    grabAfter(milliseconds(16));
    EXPECT_EQ(rearPixel(), red);
    grabAfter(milliseconds(8000));
    EXPECT_EQ(rearPixel(), red) << "the caller was busy, the camera was not silent";
    for (int i = 0; i < 28; ++i)
        grabAfter(milliseconds(100));
    EXPECT_THAT(emitted, IsEmpty());
    grabAfter(milliseconds(100));
    EXPECT_THAT(emitted, ElementsAre("PlatformIssue")) << "three seconds of silence";
}

}  // namespace
}  // namespace fieldcal::testing
