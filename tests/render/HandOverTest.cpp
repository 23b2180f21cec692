#include "engine/CalibratorInterface.h"
#include "tests/render/Stage.h"

#include <atomic>
#include <thread>

namespace fieldcal {
namespace {

using test::plainPicture;

ImageFrame16 plainDepth(std::uint32_t width, std::uint32_t height, std::uint16_t millimetres) {
    ImageFrame16 depth;
    depth.resize(width, height);
    std::fill_n(depth.pixels(), std::size_t{width} * height, millimetres);
    return depth;
}

using HandOver = test::Stage;

/// Frames and calibrations come from one thread, touches from another, and a third one paints.
TEST_F(HandOver, PicturesAndPosesChangeWhileOthersPaint) {
    open(R"(Item { width: 320; height: 480; InfraredImageRendererItem { objectName: "infrared" } }
            Item { x: 320; width: 320; height: 480; DepthColorOverlayRenderer { objectName: "overlay" } })");
    auto& infrared = find<InfraredImageRendererItem>("infrared");
    auto& overlay = find<DepthColorOverlayRenderer>("overlay");
    CameraParameters cameras;
    cameras.depth = cameras.colour[ColourCamera::Third].model = {64, 48, 50, 50, 31.5F, 23.5F};
    vq::RegistrationContext context;
    vq::CalibratorInterface engine(context, cameras);
    engine.setCameraParameters(false);
    overlay.setCalibrator(&engine);
    overlay.setTutorialFiles({"none", "none", "none"});
    overlay.show();

    std::atomic<bool> stop{false};
    std::thread loop([&] {
        for (std::uint16_t i = 0; !stop; ++i) {
            const std::uint32_t size = 40 + i % 3;
            infrared.setFrame(plainDepth(size, size, i % 1024));
            overlay.setFrames(plainPicture(64, 48, qRgb(0, i % 256, 0)), plainDepth(64, 48, i));
            if (i % 8 == 0) overlay.setCalibration(overlayCalibration(cameras, ColourCamera::Third, kNoRotation));
            overlay.setTutorialMode(i % 16 < 4);
            infrared.setDrawFlag(i % 2 == 0);
        }
    });
    for (int frame = 0; frame < 40; ++frame) {
        overlay.slot_touchDown(10, 10);
        overlay.slot_touchMove(10 + frame, 10);
        overlay.slot_touchUp(10, 10);
        window().update();
        QCoreApplication::processEvents();
        if (frame % 8 == 0) look();
    }
    stop = true;
    loop.join();

    // The last image that was handed over is the one shown.
    infrared.setDrawFlag(true);
    infrared.setFrame(plainDepth(8, 8, 1023));
    overlay.setTutorialMode(false);
    overlay.setFrames(plainPicture(8, 8, qRgb(0, 0, 200)), plainDepth(64, 48, 0));
    look();
    EXPECT_EQ(seenAt(160, 240), qRgb(255, 255, 255));
    EXPECT_EQ(seenAt(480, 240), qRgb(0, 0, 200));
}

}  // namespace
}  // namespace fieldcal
