#include "simulator/world/Cameras.h"

namespace fieldcal::world {

namespace {

cv::Vec3d metres(const session::Vector3& millimetres) {
    return cv::Vec3d(millimetres.data()) * 0.001;
}

}  // namespace

Cameras::Cameras(const session::SessionDescription& rig, const Sampling& sampling)
    : rig_(rig),
      infrared_(synthesis::infraredRays(rig.infrared, sampling.infrared)),
      depth_(synthesis::infraredRays(rig.depth, 1)),
      third_(synthesis::colourRays(rig.third, rig.infrared, sampling.third)) {
    if (rig.platform) platform_ = synthesis::platformRays(*rig.platform, rig.infrared, sampling.platform);
}

Pose Cameras::thirdPose(const Pose& depth) const {
    return colourPose(depth, cv::Matx33d(rig_.truthThird->data()), metres(rig_.third.translation));
}

Pose Cameras::platformPose(const Pose& depth) const {
    return colourPose(depth, cv::Matx33d(rig_.truthPlatform->data()), metres(rig_.platform->translation));
}

session::FramePictures Cameras::take(const World& world, const Pose& pose, const synthesis::StillSettings& settings,
                                     const StereoModel& stereo, std::uint64_t noiseSeed) const {
    session::FramePictures pictures;
    synthesis::Random infraredNoise(noiseSeed, "infrared noise"), thirdNoise(noiseSeed, "third noise");
    synthesis::Random depthNoise(noiseSeed, "depth noise");
    pictures.infrared = exposeInfrared(takePicture(world, infrared_, pose, synthesis::infraredLens), settings.infrared,
                                       settings.darkness, infraredNoise);
    pictures.third = exposeColour(takePicture(world, third_, thirdPose(pose), synthesis::thirdLens), settings.colour,
                                  settings.darkness, thirdNoise);
    pictures.depth = takeDepth(world, depth_, pose, rig_.depth.fx, stereo, depthNoise);
    if (!rig_.platform) return pictures;
    synthesis::Random platformNoise(noiseSeed, "platform noise");
    const auto radiance = takePicture(world, platform_, platformPose(pose), synthesis::platformLens);
    pictures.platform = synthesis::nv12Of(exposeColour(radiance, settings.colour, settings.darkness, platformNoise));
    return pictures;
}

}  // namespace fieldcal::world
