#include "simulator/world/Picture.h"

#include <opencv2/imgproc.hpp>

#include <atomic>
#include <future>
#include <thread>

namespace fieldcal::world {

Pose colourPose(const Pose& depth, const cv::Matx33d& rotation, const cv::Vec3d& translation) {
    Pose colour;
    colour.camera_world = rotation * depth.camera_world;
    colour.centre = depth.centre - colour.camera_world.t() * translation;
    return colour;
}

void forEachRow(int rows, const std::function<void(int)>& row) {
    std::atomic<int> next{0};
    const auto work = [&] {
        for (int y = next++; y < rows; y = next++)
            row(y);
    };
    std::vector<std::future<void>> helpers;
    for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i)
        helpers.push_back(std::async(std::launch::async, work));
    work();
    for (auto& helper : helpers)
        helper.wait();
}

cv::Mat_<cv::Vec4f> takePicture(const World& world, const synthesis::RayGrid& grid, const Pose& pose,
                                double lensSigma) {
    const cv::Matx33f world_camera = pose.camera_world.t();
    const cv::Vec3f centre = pose.centre;
    const int n = grid.samplesPerPixel;
    const float share = 1.0F / static_cast<float>(n * n);
    cv::Mat_<cv::Vec4f> picture(grid.rays.rows / n, grid.rays.cols / n, cv::Vec4f(0, 0, 0, 0));
    forEachRow(picture.rows, [&](int row) {
        cv::Vec4f* pixels = picture[row];
        for (int y = row * n; y < (row + 1) * n; ++y)
            for (int x = 0; x < picture.cols * n; ++x) {
                const cv::Vec2f& ray = grid.rays(y, x);
                const auto s = world.trace(centre, unit(world_camera * cv::Vec3f(ray[0], ray[1], 1))).radiance;
                pixels[x / n] += cv::Vec4f(s.red, s.green, s.blue, s.infrared) * share;
            }
    });
    if (lensSigma > 0) cv::GaussianBlur(picture, picture, cv::Size(), lensSigma, lensSigma, cv::BORDER_REPLICATE);
    return picture;
}

}  // namespace fieldcal::world
