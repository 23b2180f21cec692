#pragma once

#include "simulator/synthesis/Camera.h"
#include "simulator/synthesis/Exposure.h"

#include <optional>

namespace fieldcal::synthesis {

/// Spread of the lenses' blur, pixels.
inline constexpr double infraredLens = 0.55, thirdLens = 0.5, platformLens = 0.8;

/// The bytes that a rear camera delivers of its picture.
std::vector<std::uint8_t> nv12Of(const ImageFrame32& bgra);

struct StillSettings {
    InfraredSensor infrared;
    ColourSensor colour;
    double darkness = 1;
};

/// Takes the pictures of one rig in one field, still after still. Depth stays empty: everything is at infinity.
class StillRenderer {
public:
    /// `rig` must carry the true rotations of its cameras.
    StillRenderer(const DirectionField& field, const session::SessionDescription& rig);

    /// `infrared_world`: world directions into the infrared camera. Equal `noiseSeed`, equal pictures.
    session::FramePictures take(const cv::Matx33d& infrared_world, const StillSettings& settings,
                                std::uint64_t noiseSeed);

private:
    Panorama panorama_;
    RayGrid infrared_, third_, platform_;
    cv::Matx33d third_infrared_, platform_infrared_;
    bool hasPlatform_ = false;
};

}  // namespace fieldcal::synthesis
