#include "devices/CameraParameterReader.h"
#include "devices/ParameterText.h"
#include "tests/devices/SensorFixture.h"

#include <limits>

namespace fieldcal::testing {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CameraParameterReaderTest : public SensorTest {
protected:
    bool openAndRead() {
        EXPECT_TRUE(sensor->open(applicationSettings()));
        forced = 0;
        return readCameraParameters(*sensor, &parameters, [this] { ++forced; });
    }

    CameraParameters parameters;
    int forced = 0;
};

TEST_F(CameraParameterReaderTest, BringsTheInModuleCameraIntoTheInfraredGeometry) {
    ASSERT_TRUE(openAndRead());  // 580/1160 = 0.5 across, 576/960 = 0.6 down
    const CameraModel& colour = parameters.inModuleColour;
    EXPECT_EQ(colour.width, 320);
    EXPECT_EQ(colour.height, 240) << "the height follows the factor across";
    EXPECT_FLOAT_EQ(colour.fx, 580);
    EXPECT_FLOAT_EQ(colour.fy, 576);
    EXPECT_FLOAT_EQ(colour.cx, 160);
    EXPECT_FLOAT_EQ(colour.cy, 144);
    EXPECT_FLOAT_EQ(parameters.inModuleScaling.x, 1.0F);
    EXPECT_FLOAT_EQ(parameters.inModuleScaling.y, 1.2F) << "0.6 wanted, 240/480 delivered";
    EXPECT_EQ(sensor->settings().thirdScaledWidth, 320);
    EXPECT_EQ(sensor->settings().thirdScaledHeight, 240);
    EXPECT_FLOAT_EQ(parameters.depthToInModule.translation[0], 0.058F);
    EXPECT_FLOAT_EQ(parameters.depth.fx, 581);
    EXPECT_EQ(parameters.infrared.width, 628);
    EXPECT_TRUE(LogCapture::has("scaleFxThirdToIr = 0.500000, scaleFyThirdToIr = 0.600000"));
    EXPECT_TRUE(LogCapture::has("yResThirdScaledToIr: 240"));
}

TEST_F(CameraParameterReaderTest, RoundingIsToldByTheScaling) {
    device->thirdIntrinsics = {464, 464, 320, 240, 642, 481};  // factor 1.25: 802.5 and 601.25
    device->leftRight.fy = 580;
    ASSERT_TRUE(openAndRead());
    EXPECT_EQ(parameters.inModuleColour.width, 803) << "a half rounds away from zero";
    EXPECT_EQ(parameters.inModuleColour.height, 601);
    EXPECT_FLOAT_EQ(parameters.inModuleScaling.x, 802.5F / 803);
    EXPECT_FLOAT_EQ(parameters.inModuleScaling.y, 601.25F / 601);
}

TEST_F(CameraParameterReaderTest, ReadsThePlatformCamera) {
    ASSERT_TRUE(openAndRead());
    EXPECT_EQ(forced, 0);
    EXPECT_TRUE(sensor->settings().usePlatformCamera);
    EXPECT_EQ(parameters.outOfModuleColour.width, 640);
    EXPECT_EQ(parameters.outOfModuleColour.height, 360);
    EXPECT_FLOAT_EQ(parameters.outOfModuleColour.fx, 580);
    EXPECT_FLOAT_EQ(parameters.outOfModuleColour.fy, 576);
    EXPECT_FLOAT_EQ(parameters.depthToOutOfModule.translation[1], 0.012F);
    EXPECT_NEAR(parameters.outOfModuleScaling.y, 576.0 / 1145 * 720 / 360, 1e-6);
    EXPECT_EQ(sensor->settings().platformScaledWidth, 640);
    EXPECT_EQ(sensor->platformCalibration().rectificationTable.size(), 1280U * 720);
    EXPECT_EQ(sensor->platformCalibration().rectificationTable.back(), 1280U * 720 - 1);
    const std::vector<std::string> last(device->calls.end() - 7, device->calls.end());
    EXPECT_THAT(last, ElementsAre("setPlatformMode(0,1280,720)", "nonRectifiedIntrinsics()", "rectificationRotation()",
                                  "setPlatformMode(1,1280,720)", "rectifiedIntrinsics()", "rectifiedIntrinsics()",
                                  "zToPlatformExtrinsics()"));
    EXPECT_TRUE(LogCapture::has("scaled OM-RGB size height: 360"));
}

TEST_F(CameraParameterReaderTest, UnusablePlatformDataMeansNoPlatformCamera) {
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    using Damage = std::function<void(FakeKxDevice&)>;
    const Damage damages[] = {
        [](auto& d) { d.failCall("platformCamera", 1, 0); },
        [](auto& d) { d.failCall("setPlatformMode", 1, 1); },
        [](auto& d) { d.failCall("setPlatformMode", 2, 1); },
        [](auto& d) { d.failCall("nonRectifiedIntrinsics", 1, 1); },
        [](auto& d) { d.failCall("rectificationRotation", 1, 1); },
        [](auto& d) { d.failCall("rectifiedIntrinsics", 2, 1); },
        [](auto& d) { d.failCall("zToPlatformExtrinsics", 1, 1); },
        [](auto& d) { d.platform.raw.k3 = kNan; },
        [](auto& d) { d.platform.rotation[8] = kNan; },
        [](auto& d) { d.platform.rectified.cy = kNan; },
        [](auto& d) { d.platform.rectified.fx = 0; },
        [](auto& d) { d.platform.rectified.w = 4000; },  // the table would not fit
        [](auto& d) { d.platform.zToPlatform.rotation[4] = kNan; },
        [](auto& d) { d.platform.rectified.fx = 1e-3F; },  // a picture of 742400000 columns
    };
    int number = 0;
    for (const Damage& damage : damages) {
        SCOPED_TRACE(number++);
        renew();
        damage(*device);
        EXPECT_TRUE(openAndRead());
        EXPECT_EQ(forced, 1);
        EXPECT_FALSE(sensor->settings().usePlatformCamera);
        EXPECT_EQ(rearCamera.sink, nullptr) << "the rear camera is let go";
        EXPECT_EQ(parameters.outOfModuleColour.width, 0);
        EXPECT_THAT(parameters.depthToOutOfModule.rotation, Each(0.0F));
        EXPECT_EQ(parameters.inModuleColour.width, 320);
        EXPECT_THAT(emitted, IsEmpty());
        EXPECT_TRUE(sensor->grab(true));
    }
    EXPECT_TRUE(LogCapture::has("CRITICAL getCalibIntrinsicsNonRectPlatformCamera failed"));
    EXPECT_TRUE(LogCapture::has("CRITICAL getCalibExtrinsicsZToNonRectPlatformCamera failed"));
}

TEST_F(CameraParameterReaderTest, AnInvalidCalibrationIsReportedOnce) {
    device->calibrated = false;
    parameters.infrared.width = 77;
    EXPECT_FALSE(openAndRead());
    EXPECT_FALSE(readCameraParameters(*sensor, &parameters, [] {}));
    EXPECT_EQ(parameters.infrared.width, 77);
    EXPECT_TRUE(LogCapture::has("CRITICAL Calibration was reported to be invalid..."));
    EXPECT_THAT(emitted,
                ElementsAre("STATUS %2 TEXT - The device has not been calibrated or has invalid calibration data."));
    EXPECT_FALSE(sensor->grab(true));
}

TEST_F(CameraParameterReaderTest, UnusableModuleDataIsRefused) {
    using Damage = std::function<void(FakeKxDevice&)>;
    const Damage damages[] = {
        [](auto& d) { d.thirdIntrinsics.fx = std::numeric_limits<float>::infinity(); },
        [](auto& d) { d.thirdIntrinsics.fx = 0; },
        [](auto& d) { d.thirdIntrinsics.fx = 10; },    // 37120 columns
        [](auto& d) { d.thirdIntrinsics.fx = 1e9F; },  // none
        [](auto& d) { d.leftRight.cx = std::numeric_limits<float>::quiet_NaN(); },
        [](auto& d) { d.zToThird.translation[2] = std::numeric_limits<float>::quiet_NaN(); },
        [](auto& d) { d.failCall("zIntrinsics", 1, 4); },
    };
    int number = 0;
    for (const Damage& damage : damages) {
        SCOPED_TRACE(number++);
        renew();
        damage(*device);
        EXPECT_FALSE(openAndRead());
        EXPECT_THAT(
            emitted,
            ElementsAre("STATUS %2 TEXT - The device has not been calibrated or has invalid calibration data."));
    }
}

TEST(ParameterText, PosesAndModels) {
    // Rz(30°) · Ry(-10°) · Rx(20°).
    const CameraExtrinsics pose{
        {0.8528685F, -0.5212806F, 0.0296956F, 0.4924039F, 0.7841021F, -0.3777861F, 0.1736482F, 0.3368241F, 0.9254166F},
        {0.058F, -0.002F, 0.001F}};
    EXPECT_EQ(textOf(pose), "R [ 20.0000 -10.0000  30.0000] T [ 0.0580 -0.0020  0.0010]");
    EXPECT_EQ(textOf(CameraModel{640, 480, 1, 2, 3, 4}),
              "fxfy = [1.000000 2.000000] cxcy=[3.000000 4.000000] k1k2k3=[0.000000 0.000000 0.000000] "
              "p1p2=[0.000000 0.000000]");
}

}  // namespace
}  // namespace fieldcal::testing
