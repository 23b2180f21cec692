#include "simulator/handheld/TurnedView.h"

#include "camera/Rotation.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::handheld {

namespace {

using Map = cv::Mat_<cv::Vec2f>;

cv::Matx33d rotationOf(const std::optional<session::Matrix3>& truth) {
    return cv::Matx33d(truth->data());
}

void blurImage(cv::Mat image, double acrossPx, double downPx) {
    const auto odd = [](double length) { return 1 + 2 * static_cast<int>(std::abs(length) / 2); };
    const cv::Size size(odd(acrossPx), odd(downPx));
    if (size.area() > 1) cv::blur(image, image, size, {-1, -1}, cv::BORDER_REPLICATE);
}

/// Returns the bounding rectangle of all pixels that are not mapped well inside an image of `size`.
cv::Rect uncoveredArea(const Map& map, cv::Size size) {
    cv::Mat placed, rest;
    cv::inRange(map, cv::Scalar(1, 1), cv::Scalar(size.width - 2, size.height - 2), placed);
    cv::bitwise_not(placed, rest);
    return cv::boundingRect(rest);
}

/// Copies `from` at the positions of `map` to `to`; pixels mapped outside `from` are left unchanged.
void paintOver(const cv::Mat& from, const Map& map, int interpolation, cv::Mat to) {
    cv::remap(from, to, map, cv::noArray(), interpolation, cv::BORDER_TRANSPARENT);
}

void paintAll(const cv::Mat& from, const Map& map, int interpolation, cv::Mat to) {
    cv::remap(from, to, map, cv::noArray(), interpolation, cv::BORDER_REPLICATE);
}

void paintLike(const cv::Mat& from, const Map& map, int interpolation, cv::Mat* to) {
    to->create(from.size(), from.type());
    paintAll(from, map, interpolation, *to);
}

/// Converts depth to the optical axis of the rotated camera.
cv::Mat_<float> alongTurnedAxis(const cv::Mat_<float>& depth, const Lens& lens, const cv::Matx33d& before_after) {
    // The factor is linear in the pixel position.
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

ViewTurner::ViewTurner(const synthesis::Rig& rig)
    : infrared_{Lens::ofInfrared(rig.infrared), cv::Matx33d::eye()},
      right_{Lens::ofInfrared(synthesis::rightIntrinsics(rig.infrared, rig.right)), cv::Matx33d::eye()},
      depth_{Lens::ofInfrared(rig.depth), cv::Matx33d::eye()},
      third_{Lens::ofThird(rig), rotationOf(rig.truthThird)} {
    if (rig.platform) platform_ = Eye{Lens::ofPlatform(rig), rotationOf(rig.truthPlatform)};
}

cv::Matx33d ViewTurner::Eye::turn(const cv::Matx33d& before, const cv::Matx33d& now) const {
    return eye_infrared * before * now.t() * eye_infrared.t();
}

cv::Mat_<cv::Vec2f> ViewTurner::Eye::places(const RenderedView& seen, const cv::Matx33d& now, int step) const {
    return pixelsBeforeTurning(lens, turn(seen.pose.camera_world, now), step);
}

void ViewTurner::tremorInfrared(const RenderedView& seen, const Attitude& now, world::View* view) const {
    const world::View& from = seen.view;
    view->depthCamera = from.depthCamera;
    view->rightImager = from.rightImager;
    paintLike(from.infrared, infrared_.places(seen, now.infrared), cv::INTER_CUBIC, &view->infrared);
    const Map places = depth_.places(seen, now.infrared);
    paintLike(from.depth, places, cv::INTER_NEAREST, &view->depth);
    paintLike(from.unmatched, places, cv::INTER_NEAREST, &view->unmatched);
}

void ViewTurner::tremorRight(const RenderedView& seen, const Attitude& now, world::View* view) const {
    paintLike(seen.view.right, right_.places(seen, now.infrared), cv::INTER_CUBIC, &view->right);
}

void ViewTurner::tremorThird(const RenderedView& seen, const Attitude& now, world::View* view) const {
    paintLike(seen.view.third, third_.places(seen, now.colour), cv::INTER_CUBIC, &view->third);
}

void ViewTurner::tremorPlatform(const RenderedView& seen, const Attitude& now, world::View* view) const {
    if (seen.view.platform.empty()) return;
    paintLike(seen.view.platform, platform_->places(seen, now.colour), cv::INTER_CUBIC, &view->platform);
}

void ViewTurner::transitionInfrared(const Transition& transition, world::View* view) const {
    const world::View &near = transition.nearer.view, &far = transition.other.view;
    view->depthCamera = near.depthCamera;
    view->rightImager = near.rightImager;
    const cv::Matx33d& now = transition.now.infrared;
    paintTransition(transition, infrared_, now, {{near.infrared, far.infrared, &view->infrared}}, cv::INTER_LINEAR);
    blurMotion(view->infrared, infrared_, transition.motionDeg);
    const auto turned = [&](const RenderedView& seen) {
        return alongTurnedAxis(seen.view.depth, depth_.lens, depth_.turn(seen.pose.camera_world, now));
    };
    paintTransition(transition, depth_, now,
                    {{turned(transition.nearer), turned(transition.other), &view->depth},
                     {near.unmatched, far.unmatched, &view->unmatched}},
                    cv::INTER_NEAREST);
}

void ViewTurner::transitionRight(const Transition& transition, world::View* view) const {
    const cv::Mat &near = transition.nearer.view.right, &far = transition.other.view.right;
    paintTransition(transition, right_, transition.now.infrared, {{near, far, &view->right}}, cv::INTER_LINEAR);
    blurMotion(view->right, right_, transition.motionDeg);
}

void ViewTurner::transitionThird(const Transition& transition, world::View* view) const {
    const cv::Mat &near = transition.nearer.view.third, &far = transition.other.view.third;
    paintTransition(transition, third_, transition.now.colour, {{near, far, &view->third}}, cv::INTER_LINEAR);
    blurMotion(view->third, third_, transition.motionDeg);
}

void ViewTurner::transitionPlatform(const Transition& transition, world::View* view) const {
    const cv::Mat &near = transition.nearer.view.platform, &far = transition.other.view.platform;
    if (near.empty() || far.empty()) return;
    // Half the resolution of the platform camera is sufficient, because motion blurs the image.
    paintTransition(transition, *platform_, transition.now.colour, {{near, far, &view->platform}}, cv::INTER_LINEAR, 2);
    blurMotion(view->platform, *platform_, transition.motionDeg);
}

void ViewTurner::paintTransition(const Transition& transition, const Eye& eye, const cv::Matx33d& now,
                                 std::initializer_list<Layer> layers, int interpolation, int step) {
    const cv::Size size = layers.begin()->near.size();
    const auto placesIn = [&](const RenderedView& seen) { return eye.places(seen, now, step); };
    const Map places = placesIn(transition.nearer);
    const cv::Rect rest = uncoveredArea(places, size);
    const Map elsewhere = rest.empty() ? Map() : Map(placesIn(transition.other)(rest));
    for (const Layer& layer : layers) {
        layer.out->create(places.size(), layer.near.type());
        if (!rest.empty()) paintAll(layer.far, elsewhere, interpolation, (*layer.out)(rest));
        paintOver(layer.near, places, interpolation, *layer.out);
    }
}

void ViewTurner::blurMotion(cv::Mat image, const Eye& eye, cv::Point2d motionDeg) {
    const double scale = static_cast<double>(image.cols) / eye.lens.size().width;
    const double perDegree = eye.lens.focalPx() / kDegreesPerRadian * scale;
    blurImage(std::move(image), motionDeg.y * perDegree, motionDeg.x * perDegree);
}

}  // namespace fieldcal::handheld
