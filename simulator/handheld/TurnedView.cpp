#include "simulator/handheld/TurnedView.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::handheld {

namespace {

using Map = cv::Mat_<cv::Vec2f>;

constexpr double radiansPerDegree = 3.141592653589793 / 180;

cv::Matx33d rotationOf(const std::optional<session::Matrix3>& truth) {
    return cv::Matx33d(truth->data());
}

void smearPicture(cv::Mat picture, double acrossPx, double downPx) {
    const auto odd = [](double length) { return 1 + 2 * static_cast<int>(std::abs(length) / 2); };
    const cv::Size size(odd(acrossPx), odd(downPx));
    if (size.area() > 1) cv::blur(picture, picture, size, {-1, -1}, cv::BORDER_REPLICATE);
}

/// Places of the pixels of a picture of half the size.
Map halved(const Map& places) {
    Map half;
    cv::resize(places, half, places.size() / 2, 0, 0, cv::INTER_AREA);
    return half;
}

/// The smallest rectangle with every pixel that has no place well inside a picture of `size`.
cv::Rect placeless(const Map& map, cv::Size size) {
    cv::Mat placed, rest;
    cv::inRange(map, cv::Scalar(1, 1), cv::Scalar(size.width - 2, size.height - 2), placed);
    cv::bitwise_not(placed, rest);
    return cv::boundingRect(rest);
}

/// Paints `to` with what `from` has at the places of `map`; not where it has nothing.
void paintOver(const cv::Mat& from, const Map& map, int interpolation, cv::Mat to) {
    cv::remap(from, to, map, cv::noArray(), interpolation, cv::BORDER_TRANSPARENT);
}

void paintAll(const cv::Mat& from, const Map& map, int interpolation, cv::Mat to) {
    cv::remap(from, to, map, cv::noArray(), interpolation, cv::BORDER_REPLICATE);
}

/// Depth is counted along the axis of the camera, which turns, too.
cv::Mat_<float> alongTurnedAxis(const cv::Mat_<float>& depth, const Lens& lens, const cv::Matx33d& before_after) {
    // The factor is linear in the pixel.
    const auto factor = [&](double x, double y) {
        const cv::Point2d ray = lens.ray({x, y});
        return static_cast<float>(before_after(0, 2) * ray.x + before_after(1, 2) * ray.y + before_after(2, 2));
    };
    const float origin = factor(0, 0), across = factor(1, 0) - origin, down = factor(0, 1) - origin;
    cv::Mat_<float> along(depth.size());
    for (int y = 0; y < along.rows; ++y)
        for (int x = 0; x < along.cols; ++x)
            along(y, x) = depth(y, x) * (origin + across * static_cast<float>(x) + down * static_cast<float>(y));
    return along;
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

cv::Mat_<cv::Vec2f> ViewTurner::Eye::places(const SeenView& seen, const cv::Matx33d& now) const {
    return pixelsBeforeTurning(lens, turn(seen.pose.camera_world, now));
}

world::View ViewTurner::trembled(const SeenView& seen, const Attitude& now, bool withPlatform) const {
    const world::View& from = seen.view;
    world::View to = emptyLike(from, withPlatform);
    paintAll(from.infrared, infrared_.places(seen, now.infrared), cv::INTER_CUBIC, to.infrared);
    paintAll(from.third, third_.places(seen, now.colour), cv::INTER_CUBIC, to.third);
    if (!to.platform.empty())
        paintAll(from.platform, platform_->places(seen, now.colour), cv::INTER_CUBIC, to.platform);
    const cv::Mat_<cv::Vec2f> depthPlaces = depth_.places(seen, now.infrared);
    paintAll(from.depth, depthPlaces, cv::INTER_NEAREST, to.depth);
    paintAll(from.unmatched, depthPlaces, cv::INTER_NEAREST, to.unmatched);
    return to;
}

world::View ViewTurner::between(const SeenView& nearer, const SeenView& other, const Attitude& now,
                                bool withPlatform) const {
    world::View to = emptyLike(nearer.view, withPlatform);
    // The motion blurs what half of the platform camera's many pixels would hold.
    if (!to.platform.empty()) to.platform.create(nearer.view.platform.size() / 2);
    const auto paint = [&](const Eye& eye, const cv::Matx33d& attitude, const cv::Mat& near, const cv::Mat& far,
                           int interpolation, cv::Mat out) {
        const auto placesIn = [&](const SeenView& seen) {
            const Map places = eye.places(seen, attitude);
            return out.size() == places.size() ? places : halved(places);
        };
        const Map places = placesIn(nearer);
        const cv::Rect rest = placeless(places, near.size());
        if (!rest.empty()) paintAll(far, placesIn(other)(rest), interpolation, out(rest));
        paintOver(near, places, interpolation, out);
    };
    paint(infrared_, now.infrared, nearer.view.infrared, other.view.infrared, cv::INTER_LINEAR, to.infrared);
    paint(third_, now.colour, nearer.view.third, other.view.third, cv::INTER_LINEAR, to.third);
    if (!to.platform.empty())
        paint(*platform_, now.colour, nearer.view.platform, other.view.platform, cv::INTER_LINEAR, to.platform);
    const auto turned = [&](const SeenView& seen) {
        return alongTurnedAxis(seen.view.depth, depth_.lens, depth_.turn(seen.pose.camera_world, now.infrared));
    };
    paint(depth_, now.infrared, turned(nearer), turned(other), cv::INTER_NEAREST, to.depth);
    paint(depth_, now.infrared, nearer.view.unmatched, other.view.unmatched, cv::INTER_NEAREST, to.unmatched);
    return to;
}

world::View ViewTurner::emptyLike(const world::View& view, bool withPlatform) const {
    world::View out = view;
    out.infrared.release(), out.third.release(), out.platform.release(), out.depth.release(), out.unmatched.release();
    out.infrared.create(view.infrared.size());
    out.third.create(view.third.size());
    if (withPlatform && platform_) out.platform.create(view.platform.size());
    out.depth.create(view.depth.size());
    out.unmatched.create(view.unmatched.size());
    return out;
}

void ViewTurner::smear(world::View* view, cv::Point2d motionDeg) const {
    const auto smearBand = [&](const cv::Mat& picture, const Eye& eye) {
        const double scale = static_cast<double>(picture.cols) / eye.lens.size().width;
        const double perDegree = eye.lens.focalPx() * radiansPerDegree * scale;
        smearPicture(picture, motionDeg.y * perDegree, motionDeg.x * perDegree);
    };
    smearBand(view->infrared, infrared_);
    smearBand(view->third, third_);
    if (!view->platform.empty()) smearBand(view->platform, *platform_);
}

}  // namespace fieldcal::handheld
