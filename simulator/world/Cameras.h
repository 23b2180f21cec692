#pragma once

#include "session/RecordedSession.h"
#include "simulator/synthesis/StillRenderer.h"
#include "simulator/world/Depth.h"

#include <optional>

namespace fieldcal::world {

/// How many samples each pixel takes across and down. Fewer are faster and less smooth.
struct Sampling {
    int infrared = 3, third = 3, platform = 2;
};

/// The cameras of one rig, each at its own centre. One thread at a time; all processors work for it.
class Cameras {
public:
    /// `rig` must carry the true rotations of its cameras.
    explicit Cameras(const session::SessionDescription& rig, const Sampling& sampling = {});

    /// The pictures seen when the infrared camera, which is the depth camera, has `pose`. Equal arguments, equal bytes
    /// on the same kind of processor.
    session::FramePictures take(const World& world, const Pose& pose, const synthesis::StillSettings& settings,
                                const StereoModel& stereo, std::uint64_t noiseSeed) const;

    Pose thirdPose(const Pose& depth) const;
    /// Only with a platform camera.
    Pose platformPose(const Pose& depth) const;

private:
    session::SessionDescription rig_;
    synthesis::RayGrid infrared_, depth_, third_, platform_;
};

}  // namespace fieldcal::world
