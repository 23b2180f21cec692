#include "simulator/world/Cameras.h"

namespace fieldcal::world {

namespace {

cv::Vec3d metres(const session::Vector3& millimetres) {
    return cv::Vec3d(millimetres.data()) * 0.001;
}

float secondsOf(const Moment& moment) {
    return static_cast<float>(moment.seconds);
}

bool isSame(const session::Intrinsics& a, const session::Intrinsics& b) {
    return a.width == b.width && a.height == b.height && a.fx == b.fx && a.fy == b.fy && a.cx == b.cx && a.cy == b.cy;
}

}  // namespace

Cameras::Cameras(const synthesis::Rig& rig, const Sampling& sampling)
    : rig_(rig),
      infrared_(synthesis::infraredRays(rig.infrared, sampling.infrared)),
      third_(synthesis::colourRays(rig.third, rig.infrared, sampling.third)) {
    if (!isSame(rig.depth, rig.infrared)) depth_ = synthesis::infraredRays(rig.depth, 1);
    if (rig.platform) platform_ = synthesis::platformRays(*rig.platform, rig.infrared, sampling.platform);
}

Pose Cameras::rightPose(const Pose& depth) const {
    return colourPose(depth, cv::Matx33d::eye(), {rig_.right.isApart ? -kStereoBaselineM : 0, 0, 0});
}

Pose Cameras::thirdPose(const Pose& depth) const {
    return colourPose(depth, cv::Matx33d(rig_.truthThird->data()), metres(rig_.third.translation));
}

Pose Cameras::platformPose(const Pose& depth) const {
    return colourPose(depth, cv::Matx33d(rig_.truthPlatform->data()), metres(rig_.platform->translation));
}

cv::Mat_<float> Cameras::seeRight(const World& world, const Shot& left) const {
    Shot shot = left;
    shot.pose = rightPose(left.pose);
    shot.offset = {static_cast<float>(-rig_.right.columnOffsetPx / rig_.infrared.fx),
                   static_cast<float>(-rig_.right.rowOffsetPx / rig_.infrared.fy)};
    return synthesis::infraredBand(renderImage(world, infrared_, shot).light);
}

View Cameras::see(const World& world, const Moment& infraredAndDepth, const Moment& colour, bool withPlatform,
                  Interruption* interruption) const {
    const auto colourSeen = [&](const synthesis::RayGrid& grid, const Pose& pose, double lens) {
        return synthesis::colourBands(
            renderImage(world, grid, {pose, secondsOf(colour), false, lens, interruption}).light);
    };
    View view;
    view.rightImager = rig_.right;
    const Shot shot{infraredAndDepth.pose, secondsOf(infraredAndDepth), true, synthesis::kInfraredLensSigmaPx,
                    interruption};
    {
        const RenderedImage infrared = renderImage(world, infrared_, shot);
        view.infrared = synthesis::infraredBand(infrared.light);
        if (depth_.rays.empty())
            seeDepth(world, infrared_, shot, infrared, rig_.infrared, &view);
        else
            seeDepth(world, depth_, shot, renderImage(world, depth_, shot), rig_.depth, &view);
    }
    view.right = seeRight(world, shot);
    view.third = colourSeen(third_, thirdPose(colour.pose), synthesis::kThirdLensSigmaPx);
    if (withPlatform && rig_.platform)
        view.platform = colourSeen(platform_, platformPose(colour.pose), synthesis::kPlatformLensSigmaPx);
    return view;
}

session::FrameImages Cameras::take(const World& world, const Moment& moment, const synthesis::StillSettings& settings,
                                   const StereoModel& stereo, std::uint64_t noiseSeed) const {
    const View view = see(world, moment, moment, true);
    session::FrameImages images;
    images.infrared = infraredFrame(view, settings, noiseSeed);
    images.right = rightInfraredFrame(view, settings, noiseSeed);
    images.third = thirdFrame(view, settings, noiseSeed);
    images.platform = platformFrame(view, settings, noiseSeed);
    StereoModel depth = stereo;
    depth.darkness = settings.darkness;
    images.depth = depthFrame(view, depth, noiseSeed);
    return images;
}

}  // namespace fieldcal::world
