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

void smearPicture(cv::Mat picture, double acrossPx, double downPx) {
    const auto odd = [](double length) { return 1 + 2 * static_cast<int>(std::abs(length) / 2); };
    const cv::Size size(odd(acrossPx), odd(downPx));
    if (size.area() > 1) cv::blur(picture, picture, size, {-1, -1}, cv::BORDER_REPLICATE);
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

void paintLike(const cv::Mat& from, const Map& map, int interpolation, cv::Mat* to) {
    to->create(from.size(), from.type());
    paintAll(from, map, interpolation, *to);
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

cv::Mat_<cv::Vec2f> ViewTurner::Eye::places(const SeenView& seen, const cv::Matx33d& now, int step) const {
    return pixelsBeforeTurning(lens, turn(seen.pose.camera_world, now), step);
}

void ViewTurner::trembledInfrared(const SeenView& seen, const Attitude& now, world::View* view) const {
    const world::View& from = seen.view;
    view->depthCamera = from.depthCamera;
    view->rightImager = from.rightImager;
    paintLike(from.infrared, infrared_.places(seen, now.infrared), cv::INTER_CUBIC, &view->infrared);
    const Map places = depth_.places(seen, now.infrared);
    paintLike(from.depth, places, cv::INTER_NEAREST, &view->depth);
    paintLike(from.unmatched, places, cv::INTER_NEAREST, &view->unmatched);
}

void ViewTurner::trembledRight(const SeenView& seen, const Attitude& now, world::View* view) const {
    paintLike(seen.view.right, right_.places(seen, now.infrared), cv::INTER_CUBIC, &view->right);
}

void ViewTurner::trembledThird(const SeenView& seen, const Attitude& now, world::View* view) const {
    paintLike(seen.view.third, third_.places(seen, now.colour), cv::INTER_CUBIC, &view->third);
}

void ViewTurner::trembledPlatform(const SeenView& seen, const Attitude& now, world::View* view) const {
    if (seen.view.platform.empty()) return;
    paintLike(seen.view.platform, platform_->places(seen, now.colour), cv::INTER_CUBIC, &view->platform);
}

void ViewTurner::passingInfrared(const Passage& passage, world::View* view) const {
    const world::View &near = passage.nearer.view, &far = passage.other.view;
    view->depthCamera = near.depthCamera;
    view->rightImager = near.rightImager;
    const cv::Matx33d& now = passage.now.infrared;
    paintPassage(passage, infrared_, now, {{near.infrared, far.infrared, &view->infrared}}, cv::INTER_LINEAR);
    smear(view->infrared, infrared_, passage.motionDeg);
    const auto turned = [&](const SeenView& seen) {
        return alongTurnedAxis(seen.view.depth, depth_.lens, depth_.turn(seen.pose.camera_world, now));
    };
    paintPassage(passage, depth_, now,
                 {{turned(passage.nearer), turned(passage.other), &view->depth},
                  {near.unmatched, far.unmatched, &view->unmatched}},
                 cv::INTER_NEAREST);
}

void ViewTurner::passingRight(const Passage& passage, world::View* view) const {
    const cv::Mat &near = passage.nearer.view.right, &far = passage.other.view.right;
    paintPassage(passage, right_, passage.now.infrared, {{near, far, &view->right}}, cv::INTER_LINEAR);
    smear(view->right, right_, passage.motionDeg);
}

void ViewTurner::passingThird(const Passage& passage, world::View* view) const {
    const cv::Mat &near = passage.nearer.view.third, &far = passage.other.view.third;
    paintPassage(passage, third_, passage.now.colour, {{near, far, &view->third}}, cv::INTER_LINEAR);
    smear(view->third, third_, passage.motionDeg);
}

void ViewTurner::passingPlatform(const Passage& passage, world::View* view) const {
    const cv::Mat &near = passage.nearer.view.platform, &far = passage.other.view.platform;
    if (near.empty() || far.empty()) return;
    // The motion blurs what half of the platform camera's many pixels would hold.
    paintPassage(passage, *platform_, passage.now.colour, {{near, far, &view->platform}}, cv::INTER_LINEAR, 2);
    smear(view->platform, *platform_, passage.motionDeg);
}

void ViewTurner::paintPassage(const Passage& passage, const Eye& eye, const cv::Matx33d& now,
                              std::initializer_list<Layer> layers, int interpolation, int step) {
    const cv::Size size = layers.begin()->near.size();
    const auto placesIn = [&](const SeenView& seen) { return eye.places(seen, now, step); };
    const Map places = placesIn(passage.nearer);
    const cv::Rect rest = placeless(places, size);
    const Map elsewhere = rest.empty() ? Map() : Map(placesIn(passage.other)(rest));
    for (const Layer& layer : layers) {
        layer.out->create(places.size(), layer.near.type());
        if (!rest.empty()) paintAll(layer.far, elsewhere, interpolation, (*layer.out)(rest));
        paintOver(layer.near, places, interpolation, *layer.out);
    }
}

void ViewTurner::smear(cv::Mat picture, const Eye& eye, cv::Point2d motionDeg) {
    const double scale = static_cast<double>(picture.cols) / eye.lens.size().width;
    const double perDegree = eye.lens.focalPx() / kDegreesPerRadian * scale;
    smearPicture(std::move(picture), motionDeg.y * perDegree, motionDeg.x * perDegree);
}

}  // namespace fieldcal::handheld
