#include "simulator/handheld/Lens.h"

#include "simulator/synthesis/Camera.h"

#include <opencv2/imgproc.hpp>

#include <utility>

namespace fieldcal::handheld {

namespace {

/// Spacing of the computed nodes; linear interpolation between them is accurate to a hundredth of a pixel.
constexpr int kCellPx = 16;
constexpr double kFarOutside = -1e4;

cv::Vec2f pixelBefore(const Lens& lens, const cv::Matx33d& before_after, cv::Point2d ray) {
    const cv::Vec3d before = before_after * cv::Vec3d(ray.x, ray.y, 1);
    if (before[2] < 0.2) return {static_cast<float>(kFarOutside), static_cast<float>(kFarOutside)};
    const cv::Point2d p = lens.pixel({before[0] / before[2], before[1] / before[2]});
    return {static_cast<float>(p.x), static_cast<float>(p.y)};
}

}  // namespace

Lens::Lens(const session::Intrinsics& camera, cv::Point2d principalPoint,
           std::optional<session::PlatformCamera> distortion)
    : size_(camera.width, camera.height),
      fx_(camera.fx),
      fy_(camera.fy),
      principalPoint_(principalPoint),
      distortion_(std::move(distortion)),
      // One extra cell on every side avoids extrapolation.
      lattice_(size_.height / kCellPx + 3, size_.width / kCellPx + 3) {
    for (int y = 0; y < lattice_.rows; ++y)
        for (int x = 0; x < lattice_.cols; ++x)
            lattice_(y, x) = ray({(x - 1 + 0.5) * kCellPx - 0.5, (y - 1 + 0.5) * kCellPx - 0.5});
}

Lens Lens::ofInfrared(const session::Intrinsics& infrared) {
    return {infrared, {infrared.cx, infrared.cy}, {}};
}

Lens Lens::ofThird(const session::SessionDescription& rig) {
    return {rig.third, synthesis::ownPrincipalPoint(rig.third, rig.infrared), {}};
}

Lens Lens::ofPlatform(const session::SessionDescription& rig) {
    const auto& rectified = rig.platform->rectified;
    return {rectified, synthesis::ownPrincipalPoint(rectified, rig.infrared), rig.platform};
}

cv::Point2d Lens::ray(cv::Point2d pixel) const {
    const cv::Point2d p = distortion_ ? synthesis::rectifiedFromRaw(*distortion_, pixel) : pixel;
    return {(p.x - principalPoint_.x) / fx_, (p.y - principalPoint_.y) / fy_};
}

cv::Point2d Lens::pixel(cv::Point2d ray) const {
    const cv::Point2d p(ray.x * fx_ + principalPoint_.x, ray.y * fy_ + principalPoint_.y);
    return distortion_ ? synthesis::rawFromRectified(*distortion_, p) : p;
}

cv::Mat_<cv::Vec2f> pixelsBeforeTurning(const Lens& lens, const cv::Matx33d& before_after, int step) {
    const cv::Size cells = lens.lattice_.size();
    cv::Mat_<cv::Vec2f> coarse(cells);
    for (int y = 0; y < cells.height; ++y)
        for (int x = 0; x < cells.width; ++x)
            coarse(y, x) = pixelBefore(lens, before_after, lens.lattice_(y, x));
    cv::Mat_<cv::Vec2f> fine;
    cv::resize(coarse, fine, cells * (kCellPx / step), 0, 0, cv::INTER_LINEAR);
    return fine(cv::Rect({kCellPx / step, kCellPx / step}, lens.size() / step));
}

}  // namespace fieldcal::handheld
