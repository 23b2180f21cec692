#include "engine/PositionTable.h"

#include "engine/Rotation.h"

#include <Eigen/LU>

#include <algorithm>
#include <cmath>

namespace vq {
namespace {

constexpr int kEntryPx = 4;
/// Upper bound of what lies between the sampled rotations: the largest second-order term over half a sampling interval.
constexpr float kMarginPx = 0.5F;

/// Homographies from query pixels to target pixels at infinity, for each of the rotations that span the search range.
std::vector<Eigen::Matrix3d> homographies(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad,
                                          const SearchRange& range, bool queryIsInfrared) {
    const Eigen::Matrix3d infraredMatrix = cameraMatrix(cameras.infrared);
    const Eigen::Matrix3d colourMatrix = cameraMatrix(cameras.colour);
    std::vector<Eigen::Matrix3d> all;
    const auto angle = [&](int axis, int node) {
        const auto i = static_cast<std::size_t>(axis);
        const double offsetDeg = range.minDeg[i] + (range.maxDeg[i] - range.minDeg[i]) * node / 2.0;
        return currentAnglesRad[axis] + offsetDeg / kDegreesPerRadian;
    };
    for (int node = 0; node < 27; ++node) {
        const Eigen::Vector3d anglesRad(angle(0, node % 3), angle(1, node / 3 % 3), angle(2, node / 9));
        const Eigen::Matrix3d colourFromInfrared =
            colourMatrix * rotationFromAngles(anglesRad) * infraredMatrix.inverse();
        all.push_back(queryIsInfrared ? colourFromInfrared : Eigen::Matrix3d(colourFromInfrared.inverse()));
    }
    return all;
}

cv::Rect2f landingArea(const cv::Point2f& query, const std::vector<Eigen::Matrix3d>& rotations,
                       const CameraPair& cameras, bool queryIsInfrared) {
    const cv::Point2f model = queryIsInfrared ? query : cameras.colourModelPoint(query);
    cv::Point2f low(1e9F, 1e9F), high(-1e9F, -1e9F);
    for (const Eigen::Matrix3d& homography : rotations) {
        const Eigen::Vector3d p = homography * Eigen::Vector3d(model.x, model.y, 1.0);
        cv::Point2f target(static_cast<float>(p[0] / p[2]), static_cast<float>(p[1] / p[2]));
        if (queryIsInfrared) target = cameras.deliveredColourPoint(target);
        low = {std::min(low.x, target.x), std::min(low.y, target.y)};
        high = {std::max(high.x, target.x), std::max(high.y, target.y)};
    }
    return {low, high};
}

PositionTable::Quadrilateral perimeter(const cv::Rect2f& area) {
    const float left = area.x - kMarginPx, right = area.x + area.width + kMarginPx;
    const float top = area.y - kMarginPx, bottom = area.y + area.height + kMarginPx;
    return {cv::Point2f(left, top), cv::Point2f(right, top), cv::Point2f(right, bottom), cv::Point2f(left, bottom)};
}

}  // namespace

PositionTable::PositionTable(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad,
                             const SearchRange& range, bool queryIsInfrared)
    : queryIsInfrared_(queryIsInfrared) {
    const fieldcal::CameraModel& query = queryIsInfrared ? cameras.infrared : cameras.colour;
    if (query.width <= 0 || query.height <= 0) return;
    width_ = (query.width + kEntryPx - 1) / kEntryPx;
    height_ = (query.height + kEntryPx - 1) / kEntryPx;
    scaleX_ = static_cast<float>(width_) / static_cast<float>(query.width);
    scaleY_ = static_cast<float>(height_) / static_cast<float>(query.height);
    const auto rotations = homographies(cameras, currentAnglesRad, range, queryIsInfrared);
    std::vector<cv::Rect2f> corners;
    for (int y = 0; y <= height_; ++y) {
        for (int x = 0; x <= width_; ++x) {
            const cv::Point2f corner(static_cast<float>(x) / scaleX_, static_cast<float>(y) / scaleY_);
            corners.push_back(landingArea(corner, rotations, cameras, queryIsInfrared));
        }
    }
    const auto at = [&](int x, int y) { return corners[static_cast<std::size_t>(y) * (width_ + 1) + x]; };
    entries_.reserve(static_cast<std::size_t>(width_) * height_);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            entries_.push_back(perimeter(at(x, y) | at(x + 1, y) | at(x, y + 1) | at(x + 1, y + 1)));
        }
    }
}

const PositionTable::Quadrilateral* PositionTable::find(const cv::Point2f& queryPoint) const {
    const float x = queryPoint.x * scaleX_;
    const float y = queryPoint.y * scaleY_;
    const bool inside = x >= 0 && y >= 0 && x < static_cast<float>(width_) && y < static_cast<float>(height_);
    if (!inside) return nullptr;
    return &entries_[static_cast<std::size_t>(y) * width_ + static_cast<std::size_t>(x)];
}

}  // namespace vq
