#include "simulator/handheld/TurnedView.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::handheld {

namespace {

constexpr double radiansPerDegree = 3.141592653589793 / 180;

cv::Matx33d rotationOf(const std::optional<session::Matrix3>& truth) {
    return cv::Matx33d(truth->data());
}

void smearPicture(cv::Mat picture, double acrossPx, double downPx) {
    const auto odd = [](double length) { return 1 + 2 * static_cast<int>(std::abs(length) / 2); };
    const cv::Size size(odd(acrossPx), odd(downPx));
    if (size.area() > 1) cv::blur(picture, picture, size, {-1, -1}, cv::BORDER_REPLICATE);
}

}  // namespace

ViewTurner::ViewTurner(const session::SessionDescription& rig)
    : infrared_{Lens::ofInfrared(rig.infrared), cv::Matx33d::eye()},
      depth_{Lens::ofInfrared(rig.depth), cv::Matx33d::eye()},
      third_{Lens::ofThird(rig), rotationOf(rig.truthThird)} {
    if (rig.platform) platform_ = Eye{Lens::ofPlatform(rig), rotationOf(rig.truthPlatform)};
}

cv::Matx33d ViewTurner::Eye::turn(const cv::Matx33d& before, const cv::Matx33d& now) const {
    return eye_infrared * before * now.t() * eye_infrared.t();
}

void ViewTurner::paint(const SeenView& seen, const Attitude& now, int interpolation, int border,
                       world::View* out) const {
    const auto paintBand = [&](const Eye& eye, const cv::Matx33d& attitude, const cv::Mat& from, cv::Mat& to) {
        const cv::Mat map = pixelsBeforeTurning(eye.lens, eye.turn(seen.pose.camera_world, attitude));
        cv::remap(from, to, map, cv::noArray(), interpolation, border);
    };
    paintBand(infrared_, now.infrared, seen.view.infrared, out->infrared);
    paintBand(third_, now.colour, seen.view.third, out->third);
    if (platform_ && !seen.view.platform.empty()) paintBand(*platform_, now.colour, seen.view.platform, out->platform);
    paintDepth(seen, now, border, out);
}

void ViewTurner::paintDepth(const SeenView& seen, const Attitude& now, int border, world::View* out) const {
    const cv::Matx33d turn = depth_.turn(seen.pose.camera_world, now.infrared);
    const cv::Mat_<cv::Vec2f> map = pixelsBeforeTurning(depth_.lens, turn);
    // Depth is counted along the axis, which turns, too.
    cv::Mat_<float> along(seen.view.depth.size());
    const cv::Matx33d back = turn.t();
    for (int y = 0; y < along.rows; ++y)
        for (int x = 0; x < along.cols; ++x) {
            const cv::Point2d ray = depth_.lens.ray(cv::Point2d(x, y));
            along(y, x) =
                seen.view.depth(y, x) * static_cast<float>(back(2, 0) * ray.x + back(2, 1) * ray.y + back(2, 2));
        }
    cv::remap(along, out->depth, map, cv::noArray(), cv::INTER_NEAREST, border);
    cv::remap(seen.view.unmatched, out->unmatched, map, cv::noArray(), cv::INTER_NEAREST, border);
    out->depthFocalPx = seen.view.depthFocalPx;
}

world::View ViewTurner::trembled(const SeenView& seen, const Attitude& now) const {
    world::View view;
    paint(seen, now, cv::INTER_CUBIC, cv::BORDER_REPLICATE, &view);
    return view;
}

world::View ViewTurner::between(const SeenView& nearer, const SeenView& other, const Attitude& now) const {
    world::View view;
    paint(other, now, cv::INTER_LINEAR, cv::BORDER_REPLICATE, &view);
    paint(nearer, now, cv::INTER_LINEAR, cv::BORDER_TRANSPARENT, &view);
    return view;
}

void ViewTurner::smear(world::View* view, cv::Point2d motionDeg) const {
    const auto smearBand = [&](cv::Mat picture, const Eye& eye) {
        const double perDegree = eye.lens.focalPx() * radiansPerDegree;
        smearPicture(picture, motionDeg.y * perDegree, motionDeg.x * perDegree);
    };
    smearBand(view->infrared, infrared_);
    smearBand(view->third, third_);
    if (platform_ && !view->platform.empty()) smearBand(view->platform, *platform_);
}

}  // namespace fieldcal::handheld
