#include "render/OverlayProjection.h"

#include "camera/Rotation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace fieldcal {
namespace {

/// Maps (x·z, y·z, z, 1) of a depth pixel to its point in space.
Eigen::Matrix4d unprojection(const CameraModel& camera) {
    Eigen::Matrix4d matrix = Eigen::Matrix4d::Identity();
    matrix(0, 0) = 1.0 / camera.fx;
    matrix(0, 2) = -camera.cx / static_cast<double>(camera.fx);
    matrix(1, 1) = 1.0 / camera.fy;
    matrix(1, 2) = -camera.cy / static_cast<double>(camera.fy);
    return matrix;
}

/// Maps a point in front of the colour camera to clip coordinates. The edges of the image lie half a pixel outside the
/// centres of the outermost pixels.
Eigen::Matrix4d projection(const CameraModel& camera, const ColourScaling& scaling) {
    const double width = static_cast<double>(scaling.x) * camera.width;
    const double height = static_cast<double>(scaling.y) * camera.height;
    Eigen::Matrix4d matrix = Eigen::Matrix4d::Zero();
    matrix(0, 0) = 2 * camera.fx / width;
    matrix(0, 2) = 2 * (camera.cx + 0.5) / width - 1;
    matrix(1, 1) = -2 * camera.fy / height;
    matrix(1, 2) = 1 - 2 * (camera.cy + 0.5) / height;
    matrix(2, 2) = (kFarMetres + kNearMetres) / (kFarMetres - kNearMetres);
    matrix(2, 3) = -2 * kFarMetres * kNearMetres / (kFarMetres - kNearMetres);
    matrix(3, 2) = 1;
    return matrix;
}

/// The parts of the colour image's width and height that a depth pixel covers.
std::pair<double, double> depthPixelShares(const OverlayCalibration& cameras) {
    return {static_cast<double>(cameras.colour.fx) / cameras.depth.fx / cameras.scaling.x / cameras.colour.width,
            static_cast<double>(cameras.colour.fy) / cameras.depth.fy / cameras.scaling.y / cameras.colour.height};
}

}  // namespace

OverlayPose overlayPose(const std::array<float, 9>& rotation, const std::array<float, 3>& translation) {
    OverlayPose pose = OverlayPose::Identity();
    pose.topLeftCorner<3, 3>() = Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(rotation.data());
    pose.topRightCorner<3, 1>() = Eigen::Map<const Eigen::Vector3f>(translation.data());
    return pose;
}

double verticalAngleDeg(const std::array<float, 9>& rotation) {
    return std::atan2(-rotation[6], std::hypot(rotation[0], rotation[3])) * kDegreesPerRadian;
}

Eigen::Matrix4d overlayProjection(const OverlayCalibration& cameras, const OverlayPose& pose) {
    return projection(cameras.colour, cameras.scaling) * pose.cast<double>() * unprojection(cameras.depth);
}

double depthPixelSize(const OverlayCalibration& cameras, int width, int height) {
    const auto [across, down] = depthPixelShares(cameras);
    return std::max(across * width, down * height);
}

double depthPixelArea(const OverlayCalibration& cameras) {
    const auto [across, down] = depthPixelShares(cameras);
    return across * down;
}

}  // namespace fieldcal
