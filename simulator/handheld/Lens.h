#pragma once

#include "session/RecordedSession.h"

#include <opencv2/core.hpp>

#include <optional>

namespace fieldcal::handheld {

/// Converts between the pixels of a camera (first centre at 0) and its rays (x/z and y/z). The platform camera's pixels
/// are the raw ones, its rays are in its rectified frame.
class Lens {
public:
    static Lens ofInfrared(const session::Intrinsics& infrared);
    static Lens ofThird(const session::SessionDescription& rig);
    static Lens ofPlatform(const session::SessionDescription& rig);

    cv::Size size() const { return size_; }
    double focalPx() const { return fx_; }
    cv::Point2d ray(cv::Point2d pixel) const;
    cv::Point2d pixel(cv::Point2d ray) const;

private:
    Lens(const session::Intrinsics& camera, cv::Point2d principalPoint,
         std::optional<session::PlatformCamera> distortion);
    friend cv::Mat_<cv::Vec2f> pixelsBeforeTurning(const Lens& lens, const cv::Matx33d& before_after, int step);

    cv::Size size_;
    double fx_, fy_;
    cv::Point2d principalPoint_;
    std::optional<session::PlatformCamera> distortion_;
    cv::Mat_<cv::Point2d> lattice_;  ///< rays of sampled pixels, because inverting a distortion is expensive
};

/// Returns for each pixel of a camera its position in the image before the camera rotated about its centre.
/// `before_after` maps directions from the frame of the rotated camera to the previous frame. The result lies far
/// outside the image for directions behind the camera. `step` 2: for an image of half the size, each of whose pixels
/// covers four.
cv::Mat_<cv::Vec2f> pixelsBeforeTurning(const Lens& lens, const cv::Matx33d& before_after, int step = 1);

}  // namespace fieldcal::handheld
