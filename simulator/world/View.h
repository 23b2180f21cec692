#pragma once

#include "simulator/synthesis/Rig.h"
#include "simulator/world/RenderedImage.h"

namespace fieldcal::world {

/// The pose of the infrared camera, and the time.
struct Moment {
    Pose pose;
    double seconds = 0;  ///< in a moving world; others do not change
};

/// The view of a rig before any sensor: linear light behind the lenses, and exact geometry.
struct View {
    cv::Mat_<float> infrared;
    cv::Mat_<cv::Vec3f> third;     ///< red, green, blue
    cv::Mat_<cv::Vec3f> platform;  ///< the raw, distorted image; empty when it was not requested
    cv::Mat_<float> depth;         ///< metres along the axis of the depth camera; 0 for the sky
    /// 255 where stereo never finds a match: hidden from the second infrared camera, too slanted, or a reflection.
    cv::Mat_<std::uint8_t> unmatched;
    session::Intrinsics depthCamera;
    cv::Mat_<float> right;  ///< as `infrared`, for the right imager
    synthesis::RightImager rightImager;
};

}  // namespace fieldcal::world
