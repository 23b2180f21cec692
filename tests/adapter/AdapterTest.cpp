#include "tests/devices/ModuleRig.h"

#include <dlfcn.h>

namespace fieldcal::testing {
namespace {

/// Checks what the other tests cannot: that they ran with the adapter, and that images arrive unchanged.
class AdapterTest : public ModuleRig {};

TEST_F(AdapterTest, PicturesAndCalibrationArriveAsTheModuleHasThem) {
    session::SessionDescription told;
    std::string why;
    ASSERT_TRUE(session::readDescription(folder, &told, &why)) << why;
    session::FramePictures pictures;
    ASSERT_TRUE(session::readPictures(folder, told, 0, &pictures, &why)) << why;
    reopen();
    ASSERT_TRUE(sensor->grab(true));
    Dl_info found{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(sensor->link().library()->create), &found), 0);
    EXPECT_THAT(found.dli_fname, ::testing::HasSubstr("KXAPIAdapter"));

    const auto same = [](const void* pixels, const ImageFrame& picture) {
        return pixels != nullptr && std::memcmp(pixels, picture.bytes(), picture.byteCount()) == 0;
    };
    KXDevice& device = *sensor->device();
    EXPECT_TRUE(same(device.leftImage(), pictures.infrared));
    EXPECT_TRUE(same(device.rightImage(), pictures.right));
    EXPECT_TRUE(same(device.depthImage(), pictures.depth));
    EXPECT_TRUE(same(sensor->thirdCamera()->thirdImage(), pictures.third));

    EXPECT_EQ(parameters.infrared.cx, static_cast<float>(told.infrared.cx));
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_FLOAT_EQ(parameters.colour[ColourCamera::Third].fromDepth.translation[i],
                        static_cast<float>(told.third.translation[i] / 1000));
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_NEAR(parameters.colour[ColourCamera::Third].fromDepth.rotation[i], told.third.rotation[i], 1e-6);
        EXPECT_NEAR(device.platformCamera()->rectificationRotation()[i], told.platform->rectification[i], 1e-12);
    }
    EXPECT_EQ(sensor->platformCalibration().kPlatformNonRectIntr.k3, static_cast<float>(told.platform->raw.k3));
}

}  // namespace
}  // namespace fieldcal::testing
