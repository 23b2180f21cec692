#pragma once

#include "simulator/synthesis/Rig.h"
#include "simulator/world/Picture.h"

namespace fieldcal::world {

/// Where the infrared camera stands, and when.
struct Moment {
    Pose pose;
    double seconds = 0;  ///< in a world that moves; the others are the same at all times
};

/// What a rig sees before any sensor: linear light behind the lenses, and exact geometry.
struct View {
    cv::Mat_<float> infrared;
    cv::Mat_<cv::Vec3f> third;     ///< red, green, blue
    cv::Mat_<cv::Vec3f> platform;  ///< the raw, distorted picture; empty when it was not asked for
    cv::Mat_<float> depth;         ///< metres along the axis of the depth camera; 0 for the sky
    /// 255 where stereo finds nothing in any light: hidden from the second infrared camera, too slanted, or a mirror.
    cv::Mat_<std::uint8_t> unmatched;
    session::Intrinsics depthCamera;
    cv::Mat_<float> right;  ///< as `infrared`, seen by the right imager
    synthesis::RightImager rightImager;
};

}  // namespace fieldcal::world
