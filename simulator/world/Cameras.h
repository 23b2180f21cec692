#pragma once

#include "simulator/synthesis/Rig.h"
#include "simulator/world/Interruption.h"
#include "simulator/world/Sensors.h"

namespace fieldcal::world {

/// How many samples a pixel takes across and down where neighbours differ. Fewer are faster and less smooth.
struct Sampling {
    int infrared = 2, third = 2, platform = 2;
};

/// The cameras of one rig, each at its own centre. One thread at a time; all processors work for it.
class Cameras {
public:
    /// `rig` must carry the true rotations of its cameras.
    explicit Cameras(const synthesis::Rig& rig, const Sampling& sampling = {});

    /// What stands before the lenses. The left infrared camera, which is the depth camera, has the pose of
    /// `infraredAndDepth` when infrared is exposed on both imagers, and that of `colour` when the colour cameras are.
    /// `withPlatform` means nothing on a rig without a platform camera. Once `interruption` (may be null) has ended,
    /// it returns soon, and the view is worth nothing. Equal arguments, equal pictures on the same
    /// kind of processor.
    View see(const World& world, const Moment& infraredAndDepth, const Moment& colour, bool withPlatform,
             Interruption* interruption = nullptr) const;

    /// The pictures of all sensors at one moment: `see`, then the functions of `Sensors.h`.
    session::FramePictures take(const World& world, const Moment& moment, const synthesis::StillSettings& settings,
                                const StereoModel& stereo, std::uint64_t noiseSeed) const;

    Pose rightPose(const Pose& depth) const;
    Pose thirdPose(const Pose& depth) const;
    /// Only with a platform camera.
    Pose platformPose(const Pose& depth) const;

private:
    cv::Mat_<float> seeRight(const World& world, const Shot& left) const;

    synthesis::Rig rig_;
    synthesis::RayGrid infrared_, third_, platform_;
    synthesis::RayGrid depth_;  // empty when depth has the pixels of infrared
};

}  // namespace fieldcal::world
