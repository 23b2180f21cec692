// Makes the two images with which the refinement is explained: a street as seen by the module, rendered with the
// cameras specified in render/TutorialPictures.h.
//
//   fieldcal-tutorial-images DEPTH.bin COLOR.bin        (resources/Files/TutorialDepth.bin and TutorialColor.bin)

#include "render/TutorialPictures.h"
#include "simulator/handheld/Hand.h"
#include "simulator/synthesis/StillSettings.h"
#include "simulator/world/Cameras.h"
#include "simulator/world/Worlds.h"

#include <cstdio>

namespace {

using namespace fieldcal;

constexpr const char* kWorld = "street";
constexpr std::uint64_t kSeed = 2;
constexpr int kView = 1;

session::Intrinsics pinhole(const CameraModel& model) {
    session::Intrinsics camera;
    camera.width = model.width;
    camera.height = model.height;
    camera.fx = model.fx;
    camera.fy = model.fy;
    camera.cx = model.cx;
    camera.cy = model.cy;
    return camera;
}

/// Returns the tutorial's cameras as a rig. The principal point of a colour camera is given for the scaled image.
synthesis::Rig tutorialRig() {
    TutorialPictures sizes;
    sizes.depth.resize(628, 468);
    sizes.colour.resize(640, 480);
    const OverlayCalibration cameras = tutorialCalibration(sizes);
    synthesis::Rig rig;
    rig.infrared = rig.depth = pinhole(cameras.depth);
    static_cast<session::Intrinsics&>(rig.third) = pinhole(cameras.colour);
    rig.third.cx += 0.5 - 0.5 * rig.third.fx / rig.infrared.fx;
    rig.third.cy += 0.5 - 0.5 * rig.third.fy / rig.infrared.fy;
    for (std::size_t i = 0; i < 3; ++i)
        rig.third.translation[i] = cameras.stored.translation[i] * 1000.0;
    rig.third.rotation = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    rig.truthThird = rig.third.rotation;
    return rig;
}

session::FrameImages takeImages() {
    const auto stage = world::buildWorld(kWorld, kSeed);
    handheld::Hand hand(kSeed, stage->lowestPitchDeg, stage->highestPitchDeg);
    const world::Moment moment{hand.rest(kView).pose, 0};
    world::StereoModel stereo;
    stereo.noisePx = 0.03;
    stereo.emitter = true;  // with so little ambient light that the dots reach all near objects: few holes
    stereo.light = 1.0 / 100;
    return world::Cameras(tutorialRig()).take(*stage->world, moment, synthesis::StillSettings(), stereo, kSeed);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: fieldcal-tutorial-images DEPTH.bin COLOR.bin\n");
        return 2;
    }
    session::FrameImages images = takeImages();
    ImageFrame32& colour = images.third;
    for (std::size_t i = 0; i < colour.byteCount(); i += 4)
        std::swap(colour.bytes()[i], colour.bytes()[i + 2]);  // the module delivers blue first
    const bool written = writeTutorialDepth(QString::fromLocal8Bit(argv[1]), images.depth) &&
                         writeTutorialColour(QString::fromLocal8Bit(argv[2]), colour);
    return written ? 0 : 1;
}
