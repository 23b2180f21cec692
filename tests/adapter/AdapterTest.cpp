#include "tests/devices/ModuleRig.h"

#include <dlfcn.h>

namespace fieldcal::testing {
namespace {

/// Checks what the other tests cannot: that they ran with the adapter, and that images arrive unchanged.
class AdapterTest : public ModuleRig {};

TEST_F(AdapterTest, PicturesAndCalibrationArriveAsTheModuleHasThem) {
    session::SessionDescription recorded;
    std::string why;
    ASSERT_TRUE(session::readDescription(folder, &recorded, &why)) << why;
    session::FrameImages images;
    ASSERT_TRUE(session::readImages(folder, recorded, 0, &images, &why)) << why;
    reopen();
    ASSERT_TRUE(sensor->grab(true));
    Dl_info found{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(sensor->link().library()->create), &found), 0);
    EXPECT_THAT(found.dli_fname, ::testing::HasSubstr("KXAPIAdapter"));

    const auto same = [](const void* pixels, const ImageFrame& image) {
        return pixels != nullptr && std::memcmp(pixels, image.bytes(), image.byteCount()) == 0;
    };
    KXDevice& device = *sensor->device();
    EXPECT_TRUE(same(device.leftImage(), images.infrared));
    EXPECT_TRUE(same(device.rightImage(), images.right));
    EXPECT_TRUE(same(device.depthImage(), images.depth));
    EXPECT_TRUE(same(sensor->thirdCamera()->thirdImage(), images.third));

    EXPECT_EQ(parameters.infrared.cx, static_cast<float>(recorded.infrared.cx));
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_FLOAT_EQ(parameters.colour[ColourCamera::Third].fromDepth.translation[i],
                        static_cast<float>(recorded.third.translation[i] / 1000));
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_NEAR(parameters.colour[ColourCamera::Third].fromDepth.rotation[i], recorded.third.rotation[i], 1e-6);
        EXPECT_NEAR(device.platformCamera()->rectificationRotation()[i], recorded.platform->rectification[i], 1e-12);
    }
    EXPECT_EQ(sensor->platformCalibration().kPlatformNonRectIntr.k3, static_cast<float>(recorded.platform->raw.k3));
}

}  // namespace
}  // namespace fieldcal::testing
