#include "tests/devices/SensorFixture.h"

#include <algorithm>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kText = "STATUS %2 TEXT - ";
const std::string kUnknown = "An unknown error has occured.";

const std::vector<std::string> kOpeningCalls{"openDevice(-1)",        "thirdCamera()",
                                             "hardwareControl()",     "initDevice()",
                                             "serialNumber()",        "firmwareVersionText()",
                                             "softwareVersionText()", "setDepthEnabled(1)",
                                             "setLeftEnabled(1)",     "setRightEnabled(1)",
                                             "setStreamOption(1)",    "setDepthStreamMode(1,628,468,60,1)",
                                             "setThirdEnabled(1)",    "setThirdStreamMode(1,640,480,30,3)",
                                             "setAutoExposure(3,1)",  "setHardwareOption(1,16)",
                                             "emitterControl()",      "setEmitter(0)",
                                             "startCapture()"};

TEST_F(SensorTest, OpensInOrderWithTheApplicationsSettings) {
    device->calibrated = false;  // which is only logged while opening
    EXPECT_TRUE(sensor->open(applicationSettings()));
    EXPECT_TRUE(sensor->opened());
    EXPECT_EQ(device->calls, kOpeningCalls);
    EXPECT_THAT(rearCamera.calls, ElementsAre("openCamera", "autoFocus off", "focus 1700", "stream 0: 640x480@30 NV12",
                                              "stream 1: 1280x720@30 NV12", "stream 2: 3200x2400@0 NV12"));
    EXPECT_THAT(emitted, IsEmpty());
    EXPECT_THAT(LogCapture::lines(),
                ::testing::IsSupersetOf({"External platform camera is connected!", "Q550 device opened.",
                                         "Sensor firmware version: 1.27.11", "Sensor camera serial no: 550101",
                                         "CRITICAL Calibration data on camera is invalid.", "Emitter is disabled."}));
    EXPECT_EQ(sensor->frames().leftInfrared.byteCount(), 628U * 468 * 2);
    EXPECT_EQ(sensor->frames().colour[ColourCamera::Third].byteCount(), 640U * 480 * 4);
    EXPECT_FALSE(sensor->open(applicationSettings())) << "there is no second open";
}

TEST_F(SensorTest, ManualExposureFollowsTheStartGainFirst) {
    SensorSettings settings = withoutPlatform();
    settings.autoExposure = false;
    ASSERT_TRUE(sensor->open(settings));
    const std::vector<std::string> last(device->calls.end() - 3, device->calls.end());
    EXPECT_THAT(last, ElementsAre("startCapture()", "setGain(1,3)", "setExposure(16,3)"));
    EXPECT_THAT(rearCamera.calls, IsEmpty());
}

TEST_F(SensorTest, WhatIsMissingWhileOpening) {
    using Strings = std::vector<std::string>;
    const auto expect = [this](bool opens, const Strings& reports) {
        EXPECT_EQ(sensor->open(withoutPlatform()), opens);
        EXPECT_EQ(emitted, reports);
        renew();
    };
    device->failCall("emitterControl", 1, 0);
    expect(true, {});
    device->failCall("hardwareControl", 1, 0);
    expect(false, {kText + kUnknown});
    device->lrWidthValue = -5;
    expect(false, {kText + kUnknown});
    device->failCall("thirdCamera", 1, 0);
    expect(false, {});
    EXPECT_TRUE(LogCapture::has("Third failed !_third check. Could not detect in-module color sensor."));
    libraryMissing = true;
    expect(false, {"MissingQ550"});
    EXPECT_TRUE(LogCapture::has("CRITICAL no library"));
}

TEST_F(SensorTest, AServiceThatDoesNotStopEndsTheOpening) {
    control.states = {4};
    std::atomic<bool> stop{false};
    control.onSleep = [&] { stop = true; };
    sensor->setStopFlag(&stop);
    EXPECT_FALSE(sensor->open(applicationSettings()));
    EXPECT_THAT(emitted, IsEmpty()) << "leaving is no fault";
    EXPECT_EQ(control.startType, 2U) << "the service is not left disabled";

    renew();
    control.fail("controlService", 1, 1052);
    EXPECT_FALSE(sensor->open(applicationSettings()));
    EXPECT_THAT(emitted, ElementsAre("1052: (ControlService) ==> text 1052"));
    EXPECT_THAT(rearCamera.calls, IsEmpty());
}

}  // namespace
}  // namespace fieldcal::testing
