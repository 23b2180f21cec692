#include "devices/CameraParameterReader.h"
#include "tests/devices/SensorFixture.h"

#include <limits>

namespace fieldcal::testing {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::FloatEq;
using ::testing::IsEmpty;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr const char* kNotCalibrated =
    "STATUS %2 TEXT - The device has not been calibrated or has invalid calibration data.";

using Damage = std::function<void(FakeKxDevice&)>;

std::vector<float> numbersOf(const CameraModel& model) {
    return {static_cast<float>(model.width), static_cast<float>(model.height), model.fx, model.fy, model.cx, model.cy};
}

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
    ASSERT_TRUE(openAndRead());  // 580/1160 = 0.5 across, 576/960 = 0.6 down; the height follows the factor across
    EXPECT_THAT(numbersOf(parameters.colour[ColourCamera::Third].model), ElementsAre(320, 240, 580, 576, 160, 144));
    EXPECT_FLOAT_EQ(parameters.colour[ColourCamera::Third].scaling.x, 1.0F);
    EXPECT_FLOAT_EQ(parameters.colour[ColourCamera::Third].scaling.y, 1.2F) << "0.6 wanted, 240/480 delivered";
    EXPECT_EQ(sensor->settings().thirdScaledWidth, 320);
    EXPECT_EQ(sensor->settings().thirdScaledHeight, 240);
    EXPECT_THAT(parameters.colour[ColourCamera::Third].fromDepth.translation,
                ElementsAre(FloatEq(0.058F), FloatEq(-0.002F), FloatEq(0.001F)));
    EXPECT_THAT(numbersOf(parameters.infrared), ElementsAre(628, 468, 580, 576, 314, 234));
    EXPECT_THAT(numbersOf(parameters.depth), ElementsAre(628, 468, 581, 577, 315, 235));
    EXPECT_TRUE(
        LogCapture::has("getCalibIntrinsicsZ output: fx=581.000000, fy=577.000000, cx=315.000000, "
                        "cy=235.000000, w=628, h=468"));
    EXPECT_TRUE(LogCapture::has("scaleFxThirdToIr = 0.500000, scaleFyThirdToIr = 0.600000"));
}

TEST_F(CameraParameterReaderTest, RoundingIsToldByTheScaling) {
    device->third = {464, 464, 320, 240, 642, 481};  // factor 1.25: 802.5 and 601.25
    device->leftRight.fy = 580;
    device->thirdWidthValue = 642;
    device->thirdHeightValue = 481;
    ASSERT_TRUE(openAndRead());
    EXPECT_EQ(parameters.colour[ColourCamera::Third].model.width, 803) << "a half rounds away from zero";
    EXPECT_EQ(parameters.colour[ColourCamera::Third].model.height, 601);
    EXPECT_FLOAT_EQ(parameters.colour[ColourCamera::Third].scaling.x, 802.5F / 803);
    EXPECT_FLOAT_EQ(parameters.colour[ColourCamera::Third].scaling.y, 601.25F / 601);
}

TEST_F(CameraParameterReaderTest, ReadsThePlatformCamera) {
    ASSERT_TRUE(openAndRead());
    EXPECT_EQ(forced, 0);
    EXPECT_TRUE(sensor->settings().usePlatformCamera);
    EXPECT_THAT(numbersOf(parameters.colour[ColourCamera::Platform].model),
                ElementsAre(640, 360, FloatEq(580), FloatEq(576), FloatEq(325), FloatEq(355 * 576.0F / 1145)));
    EXPECT_THAT(parameters.colour[ColourCamera::Platform].fromDepth.translation,
                ElementsAre(FloatEq(-0.03F), FloatEq(0.012F), FloatEq(0.004F)));
    EXPECT_NEAR(parameters.colour[ColourCamera::Platform].scaling.y, 576.0 / 1145 * 720 / 360, 1e-6);
    EXPECT_EQ(sensor->settings().platformScaledWidth, 640);
    EXPECT_EQ(sensor->platformCalibration().rectificationTable.back(), 1280U * 720 - 1);
    const std::vector<std::string> last(device->calls.end() - 7, device->calls.end());
    EXPECT_THAT(last, ElementsAre("setPlatformMode(0,1280,720)", "nonRectifiedIntrinsics()", "rectificationRotation()",
                                  "setPlatformMode(1,1280,720)", "rectifiedIntrinsics()", "rectifiedIntrinsics()",
                                  "zToPlatformExtrinsics()"));
    EXPECT_TRUE(LogCapture::has("scaled OM-RGB size height: 360"));
}

TEST_F(CameraParameterReaderTest, UnusablePlatformDataMeansNoPlatformCamera) {
    const Damage damages[] = {
        [](auto& d) { d.failCall("platformCamera", 1, 0); },
        [](auto& d) { d.failCall("setPlatformMode", 1, 1); },
        [](auto& d) { d.failCall("setPlatformMode", 2, 1); },
        [](auto& d) { d.failCall("nonRectifiedIntrinsics", 1, 1); },
        [](auto& d) { d.failCall("rectificationRotation", 1, 1); },
        [](auto& d) { d.failCall("rectifiedIntrinsics", 2, 1), d.failCall("zToPlatformExtrinsics", 1, 1); },
        [](auto& d) { d.raw.k3 = kNan; },
        [](auto& d) { d.rotation[8] = kNan; },
        [](auto& d) { d.rectified.cy = kNan; },
        [](auto& d) { d.rectified.fx = 0; },
        [](auto& d) { d.rectified.w = 4000; },  // the table would not fit
        [](auto& d) { d.zToPlatform.rotation[4] = kNan; },
        [](auto& d) { d.rectified.fx = 1e-3F; },  // an image with 742400000 columns
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
        EXPECT_EQ(parameters.colour[ColourCamera::Platform].model.width, 0);
        EXPECT_THAT(parameters.colour[ColourCamera::Platform].fromDepth.rotation, Each(0.0F));
        EXPECT_EQ(parameters.colour[ColourCamera::Third].model.width, 320);
        EXPECT_THAT(emitted, IsEmpty());
        EXPECT_TRUE(sensor->grab(true));
    }
    EXPECT_TRUE(LogCapture::has("CRITICAL getCalibIntrinsicsNonRectPlatformCamera failed"));
    EXPECT_TRUE(LogCapture::has("CRITICAL getCalibExtrinsicsZToNonRectPlatformCamera failed"));
}

TEST_F(CameraParameterReaderTest, UnusableModuleDataIsRefusedAndReportedOnce) {
    const Damage damages[] = {
        [](auto& d) { d.calibrated = false; },
        [](auto& d) { d.third.fx = std::numeric_limits<float>::infinity(); },
        [](auto& d) { d.third.fx = 10; },    // 37120 columns
        [](auto& d) { d.third.fx = 1e9F; },  // none
        [](auto& d) { d.leftRight.cx = kNan; },
        [](auto& d) { d.leftRight.w = 640; },  // a different size from that of the images
        [](auto& d) { d.z.h = 480; },
        [](auto& d) { d.third.h = 720; },
        [](auto& d) { d.zToThird.translation[2] = kNan; },
        [](auto& d) { d.failCall("zIntrinsics", 1, 4); },
    };
    int number = 0;
    for (const Damage& damage : damages) {
        SCOPED_TRACE(number++);
        renew();
        damage(*device);
        parameters.infrared.width = 77;
        EXPECT_FALSE(openAndRead());
        EXPECT_FALSE(readCameraParameters(*sensor, &parameters, [] {}));
        EXPECT_EQ(parameters.infrared.width, 77);
        EXPECT_THAT(emitted, ElementsAre(kNotCalibrated));
        EXPECT_FALSE(sensor->grab(true));
    }
    EXPECT_TRUE(LogCapture::has("CRITICAL Calibration was reported to be invalid..."));
    EXPECT_TRUE(LogCapture::has(
        "CRITICAL The infrared pictures have 628 x 468 pixels, but their calibration is for 640 x 468."));
}

TEST(LogTexts, PosesAndModels) {
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
