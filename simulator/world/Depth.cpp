#include "simulator/world/Depth.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

namespace {

/// What the stereo of the module makes of an exact depth in metres; millimetres, 0 when nothing is left.
std::uint16_t measured(double depth, double focalPx, const StereoModel& model, double noise) {
    const double disparity = focalPx * model.baseline / depth + model.noisePx * noise;
    const double stepped = std::round(disparity / model.stepPx) * model.stepPx;
    if (stepped <= 0) return 0;
    const double found = focalPx * model.baseline / stepped;
    if (found < model.nearest || found > model.farthest) return 0;
    return static_cast<std::uint16_t>(std::lround(found * 1000));
}

/// Cosine between ray and surface, from the depths to the left and right and above and below.
double slantAt(const cv::Mat_<float>& depth, int x, int y, double focalPx) {
    const int left = std::max(x - 1, 0), right = std::min(x + 1, depth.cols - 1);
    const int above = std::max(y - 1, 0), below = std::min(y + 1, depth.rows - 1);
    const double perPixel = depth(y, x) / focalPx;
    const double across = (depth(y, right) - depth(y, left)) / (perPixel * (right - left));
    const double down = (depth(below, x) - depth(above, x)) / (perPixel * (below - above));
    return 1 / std::sqrt(1 + across * across + down * down);
}

}  // namespace

cv::Mat_<float> exactDepth(const World& world, const synthesis::RayGrid& pixels, const Pose& pose, double farthest) {
    const cv::Matx33f world_camera = pose.camera_world.t();
    const cv::Vec3f centre = pose.centre;
    cv::Mat_<float> depth(pixels.rays.size());
    forEachRow(depth.rows, [&](int y) {
        for (int x = 0; x < depth.cols; ++x) {
            const cv::Vec3f ray(pixels.rays(y, x)[0], pixels.rays(y, x)[1], 1);
            const float z = world.distance(centre, unit(world_camera * ray)) / static_cast<float>(cv::norm(ray));
            depth(y, x) = z <= static_cast<float>(farthest) ? z * 1000 : 0;
        }
    });
    return depth;
}

ImageFrame16 takeDepth(const World& world, const synthesis::RayGrid& pixels, const Pose& pose, double focalPx,
                       const StereoModel& model, synthesis::Random& random) {
    // A little further than what is delivered: noise brings some of it back.
    const cv::Mat_<float> exact = exactDepth(world, pixels, pose, model.farthest * 1.2);
    const cv::Vec3f centre = pose.centre;
    const cv::Matx33d world_camera = pose.camera_world.t();
    const cv::Vec3f second = pose.centre + world_camera * cv::Vec3d(model.baseline, 0, 0);
    ImageFrame16 frame;
    frame.resize(static_cast<std::uint32_t>(exact.cols), static_cast<std::uint32_t>(exact.rows));
    std::uint16_t* out = frame.pixels();
    for (int y = 0; y < exact.rows; ++y)
        for (int x = 0; x < exact.cols; ++x, ++out) {
            const double noise = random.normal();  // drawn for every pixel, so that holes shift nothing
            const float z = exact(y, x) / 1000;
            *out = 0;
            if (z <= 0 || slantAt(exact, x, y, focalPx) < model.slantLimit) continue;
            const cv::Vec3f ray(pixels.rays(y, x)[0], pixels.rays(y, x)[1], 1);
            const cv::Vec3f point = centre + cv::Matx33f(world_camera) * (ray * z);
            if (!world.isHidden(second, point)) *out = measured(z, focalPx, model, noise);
        }
    return frame;
}

}  // namespace fieldcal::world
