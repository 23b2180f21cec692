#pragma once

#include "simulator/synthesis/Rig.h"
#include "simulator/world/Interruption.h"
#include "simulator/world/Sensors.h"

namespace fieldcal::world {

/// Number of samples per pixel across and down in supersampled pixels. Fewer samples are faster and less smooth.
struct Sampling {
    int infrared = 2, third = 2, platform = 2;
};

/// The cameras of a rig, each at its own centre. One thread at a time; rendering uses all processors.
class Cameras {
public:
    /// `rig` must carry the true rotations of its cameras.
    explicit Cameras(const synthesis::Rig& rig, const Sampling& sampling = {});

    /// Renders the view of all cameras. The pose of the left infrared camera, which is the depth camera, is that of
    /// `infraredAndDepth` at the exposure of both infrared imagers, and that of `colour` at the exposure of the colour
    /// cameras. `withPlatform` has no effect on a rig without a platform camera. Once `interruption` (may be null) has
    /// ended, the function returns soon with an incomplete view. Equal arguments give equal images on the same kind of
    /// processor.
    View see(const World& world, const Moment& infraredAndDepth, const Moment& colour, bool withPlatform,
             Interruption* interruption = nullptr) const;

    /// Returns the images of all sensors at one moment: `see`, followed by the functions of `Sensors.h`.
    session::FrameImages take(const World& world, const Moment& moment, const synthesis::StillSettings& settings,
                              const StereoModel& stereo, std::uint64_t noiseSeed) const;

    Pose rightPose(const Pose& depth) const;
    Pose thirdPose(const Pose& depth) const;
    /// Requires a platform camera.
    Pose platformPose(const Pose& depth) const;

private:
    cv::Mat_<float> seeRight(const World& world, const Shot& left) const;

    synthesis::Rig rig_;
    synthesis::RayGrid infrared_, third_, platform_;
    synthesis::RayGrid depth_;  // empty when depth has the pixels of infrared
};

}  // namespace fieldcal::world
