#pragma once

#include "session/RecordedSession.h"

#include <opencv2/core.hpp>

#include <optional>

namespace fieldcal::handheld {

/// The way between the pixels of a camera (first centre at 0) and its rays (x/z and y/z), both ways. The platform
/// camera's pixels are the raw ones, its rays are in its rectified frame.
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
    cv::Mat_<cv::Point2d> lattice_;  ///< rays of pixels here and there, which take long to find through a distortion
};

/// Where each pixel of a camera was, in its own picture, before the camera turned about its centre.
/// `before_after` takes directions of the turned camera's frame into the one before. Far outside for what was behind.
/// `step` 2: for a picture of half the size, its pixels made of four.
cv::Mat_<cv::Vec2f> pixelsBeforeTurning(const Lens& lens, const cv::Matx33d& before_after, int step = 1);

}  // namespace fieldcal::handheld
