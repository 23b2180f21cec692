#include "tests/simulator/TestModule.h"

#include <gmock/gmock.h>

namespace {

class Sink : public RearCameraSink {
public:
    void onImage(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds) override {
        image.assign(nv12, nv12 + width * height * 3 / 2);
        times.push_back(timeSeconds);
    }
    std::vector<std::uint8_t> image;
    std::vector<double> times;
};

class RearCamera : public ModuleTest {
protected:
    ~RearCamera() override {
        if (library != nullptr && plugInRearCamera() != nullptr) plugInRearCamera()->setSink(nullptr);
    }
    Sink sink;
};

TEST_F(RearCamera, ShowsTheRecordingsPicturesInsideGrabAtHalfTheRate) {
    RearCameraSource* rear = openRearCamera();
    EXPECT_STREQ(rear->friendlyName(), "Rear");
    rear->setSink(&sink);
    const std::shared_ptr<KXDevice> device = createCapturing();
    ASSERT_TRUE(device->grab(true));
    EXPECT_EQ(sink.image, fieldcal::session::testImages(session, true).platform);
    for (int i = 1; i < 26; ++i)
        ASSERT_TRUE(device->grab(true));
    EXPECT_EQ(sink.times.size(), 13U);
    EXPECT_NEAR(sink.times[1] - sink.times[0], 1 / 30.0, 1e-9);
    ASSERT_TRUE(device->grab(true));
    EXPECT_EQ(sink.times.size(), 13U) << "the second frame has no platform picture";
    ASSERT_TRUE(device->grab(true));
    EXPECT_EQ(sink.times.size(), 14U) << "the first frame again";
    rear->setSink(nullptr);
    for (int i = 0; i < 4; ++i)
        ASSERT_TRUE(device->grab(true));
    EXPECT_EQ(sink.times.size(), 14U);
}

TEST_F(RearCamera, ShowsNothingBeforeTheRecordStreamIsSetUp) {
    RearCameraSource* rear = plugInRearCamera();
    rear->setSink(&sink);
    EXPECT_FALSE(rear->setFocus(1700)) << "not opened";
    EXPECT_FALSE(rear->setupStream(1, 1280, 720, 30, "NV12")) << "not opened";
    EXPECT_TRUE(rear->openCamera() && rear->setupStream(0, 640, 480, 30, "NV12"));
    EXPECT_FALSE(rear->setupStream(1, 640, 480, 30, "NV12"));
    EXPECT_FALSE(rear->setupStream(1, 1280, 720, 30, "YUY2"));
    EXPECT_FALSE(rear->setupStream(1, 1280, 720, 30, nullptr));
    EXPECT_FALSE(rear->setupStream(3, 1280, 720, 30, "NV12"));
    const std::shared_ptr<KXDevice> device = createCapturing();
    ASSERT_TRUE(device->grab(true));
    EXPECT_TRUE(sink.times.empty());
}

TEST_F(RearCamera, IsThereAsTheEnvironmentSays) {
    set("KXSIM_PLATFORM", "absent");
    EXPECT_NE(plugInRearCamera(), nullptr) << "a recording decides by itself";
    set("KXSIM_SESSION", folder + "/nowhere");
    ASSERT_NE(plugInRearCamera(), nullptr) << "the module is to say what is wrong";
    EXPECT_STREQ(plugInRearCamera()->friendlyName(), "HP Truevision 8MP Rear");
    set("KXSIM_SESSION", "");
    EXPECT_EQ(plugInRearCamera(), nullptr);
    set("KXSIM_PLATFORM", "uncalibrated");
    EXPECT_NE(plugInRearCamera(), nullptr);
}

TEST_F(RearCamera, LiesAndGoesOnOrder) {
    set("KXSIM_FAULTS", "openCamera:1:lie,setFocus:2:gone");
    RearCameraSource* rear = plugInRearCamera();
    EXPECT_TRUE(rear->openCamera());
    EXPECT_FALSE(rear->setFocus(1700)) << "the opening was a lie";
    EXPECT_FALSE(rear->setFocus(1700));
    EXPECT_FALSE(rear->openCamera()) << "gone";
}

}  // namespace
