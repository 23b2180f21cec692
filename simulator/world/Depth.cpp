#include "simulator/world/Depth.h"

#include "simulator/synthesis/NormalTable.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

namespace {

/// Smallest cosine between ray and surface normal at which the two cameras see the surface similarly enough.
constexpr double kMaxSlant = 0.12;
/// Largest depth computed, in metres; a little more than the module delivers, because noise reduces some depths.
constexpr float kMaxUsedDistance = 20;

/// Returns the depth measured by the module's stereo for an exact depth in metres: millimetres, 0 when none is
/// measured. `errorPx`: error of the disparity.
std::uint16_t measured(double depth, double focalPx, const StereoModel& model, double errorPx) {
    const double disparity = focalPx * kStereoBaselineM / depth + errorPx;
    const double stepped = std::round(disparity / model.stepPx) * model.stepPx;
    if (stepped <= 0) return 0;
    const double found = focalPx * kStereoBaselineM / stepped;
    if (found < model.nearest || found > model.farthest) return 0;
    return static_cast<std::uint16_t>(std::lround(found * 1000));
}

/// Texture along the rows around each pixel, relative to what stereo needs with the infrared sensor's noise.
cv::Mat_<float> textureOf(const View& view, double darkness) {
    constexpr double window = 5;   // pixels, of a Gaussian
    constexpr int coarse = 4;      // spacing in pixels of the positions at which it is computed
    constexpr float gathered = 2;  // a whole window resolves shifts with texture this far below the noise
    constexpr double exposed = 400, stepsPerElectron = 1.0 / 14, readNoise = 2.2;
    cv::Mat_<float> texture, level, slope;
    if (view.infrared.size() == view.depth.size())
        level = view.infrared.clone();
    else
        cv::resize(view.infrared, level, view.depth.size());
    level *= exposed * darkness / std::max(1e-6, cv::mean(level)[0]);
    cv::filter2D(level, slope, CV_32F, cv::Matx13f(-0.7071F, 0, 0.7071F));
    const auto smoothed = [&](const cv::Mat_<float>& from) {
        cv::Mat_<float> to;
        cv::resize(from, to, from.size() / coarse, 0, 0, cv::INTER_AREA);
        cv::GaussianBlur(to, to, cv::Size(), window / coarse);
        return to;
    };
    texture = smoothed(slope.mul(slope));
    level = smoothed(level);
    for (int y = 0; y < level.rows; ++y)
        for (int x = 0; x < level.cols; ++x) {
            const auto noise = static_cast<float>(level(y, x) * stepsPerElectron + readNoise * readNoise);
            texture(y, x) = gathered * std::sqrt(texture(y, x) / noise);
        }
    cv::resize(texture, texture, view.depth.size(), 0, 0, cv::INTER_LINEAR);
    return texture;
}

/// Cosine between ray and surface normal, from the depths of the four neighbours.
double slantAt(const cv::Mat_<float>& depth, int x, int y, double focalPx) {
    const int left = std::max(x - 1, 0), right = std::min(x + 1, depth.cols - 1);
    const int above = std::max(y - 1, 0), below = std::min(y + 1, depth.rows - 1);
    const double perPixel = depth(y, x) / focalPx;
    const double across = (depth(y, right) - depth(y, left)) / (perPixel * (right - left));
    const double down = (depth(below, x) - depth(above, x)) / (perPixel * (below - above));
    return 1 / std::sqrt(1 + across * across + down * down);
}

}  // namespace

void seeDepth(const World& world, const synthesis::RayGrid& grid, const Shot& shot, const RenderedImage& image,
              const session::Intrinsics& camera, View* view) {
    const cv::Mat_<float>& depth = view->depth = image.depth;
    cv::Mat_<std::uint8_t>& unmatched = view->unmatched = image.reflected.clone();
    view->depthCamera = camera;
    const cv::Matx33f world_camera = shot.pose.camera_world.t();
    const cv::Vec3f first = shot.pose.centre, second = first + world_camera * cv::Vec3f(kStereoBaselineM, 0, 0);
    forEachRow(depth.rows, [&](int y) {
        Rays rays;
        rays.seconds = shot.seconds;
        std::array<int, Rays::kCount> owner{};
        const auto flush = [&] {
            const unsigned hidden = world.hidden(rays);
            for (int i = 0; i < rays.count; ++i)
                if ((hidden >> i & 1U) != 0) unmatched(y, owner[i]) = 255;
            rays.count = 0;
        };
        for (int x = 0; x < depth.cols; ++x) {
            const float z = depth(y, x);
            if (z <= 0 || z > kMaxUsedDistance || slantAt(depth, x, y, camera.fx) < kMaxSlant) unmatched(y, x) = 255;
            if (unmatched(y, x) != 0) continue;
            const cv::Vec2f ray = middleRay(grid, x, y);
            const cv::Vec3f way = first + world_camera * (cv::Vec3f(ray[0], ray[1], 1) * z) - second;
            owner[rays.count] = x;
            rays.add(second, unit(way), static_cast<float>(cv::norm(way)));
            if (rays.count == Rays::kCount) flush();
        }
        flush();
    });
}

ImageFrame16 measureDepth(const View& view, const StereoModel& model, synthesis::Random& random) {
    constexpr double plenty = 2;  // multiple of the required texture
    const cv::Mat_<float> texture = textureOf(view, model.darkness);
    const double shiftPx = view.rightImager.affectsDepth ? -view.rightImager.columnOffsetPx : 0;
    synthesis::NormalTable normal(random);
    ImageFrame16 frame;
    frame.resize(static_cast<std::uint32_t>(view.depth.cols), static_cast<std::uint32_t>(view.depth.rows));
    std::uint16_t* out = frame.pixels();
    for (int y = 0; y < view.depth.rows; ++y)
        for (int x = 0; x < view.depth.cols; ++x, ++out) {
            const double noise = normal.next();  // drawn for every pixel, so that gaps do not change the noise of other
                                                 // pixels
            const double z = view.depth(y, x), dots = model.emitter && z > 0 ? 1 / (model.light * z * z) : 0;
            const double seen = std::sqrt(double{texture(y, x)} * texture(y, x) + dots * dots);
            *out = 0;
            if (view.unmatched(y, x) != 0 || seen < 1) continue;
            const double noisePx = noise * model.noisePx * std::clamp(plenty / seen, 1.0, 3.0);
            *out = measured(z, view.depthCamera.fx, model, noisePx + shiftPx);
        }
    return frame;
}

}  // namespace fieldcal::world
