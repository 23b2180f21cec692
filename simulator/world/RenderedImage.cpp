#include "simulator/world/RenderedImage.h"

#include <opencv2/imgproc.hpp>

#include <atomic>
#include <cmath>
#include <future>
#include <thread>

namespace fieldcal::world {

namespace {

/// Relative difference between neighbours above which a pixel is supersampled: slightly above the noise of the sensors.
/// Materials that filter their own details need supersampling only at shadows and outlines.
constexpr float kPlainLimit = 0.04F, kSmoothLimit = 0.4F;

cv::Mat_<cv::Vec2f> middleRays(const synthesis::RayGrid& grid, const cv::Vec2f& offset) {
    cv::Mat_<cv::Vec2f> middle(grid.rays.rows / grid.samplesPerPixel, grid.rays.cols / grid.samplesPerPixel);
    for (int y = 0; y < middle.rows; ++y)
        for (int x = 0; x < middle.cols; ++x)
            middle(y, x) = middleRay(grid, x, y) + offset;
    return middle;
}

class ImageRenderer {
public:
    ImageRenderer(const World& world, const synthesis::RayGrid& grid, const Shot& shot)
        : world_(world),
          grid_(grid),
          offset_(shot.offset),
          middle_(middleRays(grid, shot.offset)),
          world_camera_(shot.pose.camera_world.t()),
          centre_(shot.pose.centre),
          seconds_(shot.seconds),
          interruption_(shot.interruption),
          bands_(shot.infrared ? cv::Vec4f(0, 0, 0, 1) : cv::Vec4f(0.3F, 0.59F, 0.11F, 0)),
          spread_(spacing()),
          first_(middle_.total()) {}

    RenderedImage render() {
        image_.light.create(middle_.size());
        image_.depth.create(middle_.size());
        image_.reflected.create(middle_.size());
        image_.light.setTo(0);
        image_.depth.setTo(0);
        image_.reflected.setTo(0);
        const auto renderRows = [this](void (ImageRenderer::*step)(int)) {
            forEachRow(
                middle_.rows, [&](int y) { (this->*step)(y); }, interruption_);
        };
        renderRows(&ImageRenderer::sampleOnce);
        if (grid_.samplesPerPixel > 1) renderRows(&ImageRenderer::supersample);
        return std::move(image_);
    }

private:
    struct FirstSample {
        float level = 0;
        int material = -1;
        cv::Vec3f normal;
        bool sunlit = false, smooth = true;
    };

    float spacing() const {
        const cv::Vec2f &a = middle_(middle_.rows / 2, middle_.cols / 2), &b = middle_(0, 0);
        return std::abs(a[0] - b[0]) / static_cast<float>(std::max(1, middle_.cols / 2));
    }
    std::size_t indexOf(int y, int x) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(middle_.cols) + static_cast<std::size_t>(x);
    }
    cv::Vec3f towards(const cv::Vec2f& ray) const { return unit(world_camera_ * cv::Vec3f(ray[0], ray[1], 1)); }
    static cv::Vec4f asVector(const synthesis::Spectrum& s) { return {s.red, s.green, s.blue, s.infrared}; }

    /// Takes one sample for every pixel of a row.
    void sampleOnce(int y) {
        std::array<Sample, Rays::kCount> samples;
        for (int x = 0; x < middle_.cols; x += Rays::kCount) {
            Rays rays;
            rays.seconds = seconds_;
            for (int i = x; i < std::min(x + Rays::kCount, middle_.cols); ++i)
                rays.add(centre_, towards(middle_(y, i)));
            world_.trace(rays, spread_, samples.data());
            for (int i = 0; i < rays.count; ++i)
                keep(y, x + i, samples[i]);
        }
    }

    void keep(int y, int x, const Sample& s) {
        const cv::Vec2f& ray = middle_(y, x);
        const cv::Vec4f light = asVector(s.radiance);
        image_.light(y, x) = light;
        image_.depth(y, x) = std::isinf(s.distance) ? 0 : s.distance / std::sqrt(1 + ray.dot(ray));
        image_.reflected(y, x) = s.mirror ? 255 : 0;
        first_[indexOf(y, x)] = {light.dot(bands_), s.material, s.normal, s.sunlit, s.smooth};
    }

    static bool alike(const FirstSample& a, const FirstSample& b) {
        if (a.material != b.material || a.sunlit != b.sunlit) return false;
        const bool smooth = a.smooth && b.smooth && (a.material < 0 || a.normal.dot(b.normal) > 0.98F);
        const float limit = smooth ? kSmoothLimit : kPlainLimit;
        return std::abs(a.level - b.level) <= limit * 0.5F * (a.level + b.level);
    }

    bool isPlain(int y, int x) const {
        for (int v = std::max(0, y - 1); v <= std::min(y + 1, middle_.rows - 1); ++v)
            for (int u = std::max(0, x - 1); u <= std::min(x + 1, middle_.cols - 1); ++u)
                if (!alike(first_[indexOf(y, x)], first_[indexOf(v, u)])) return false;
        return true;
    }

    /// Supersamples the pixels of a row that differ from their neighbours. The sample in the centre is already
    /// available.
    void supersample(int y) {
        Rays rays;
        rays.seconds = seconds_;
        std::array<int, Rays::kCount> owner{};
        const int n = grid_.samplesPerPixel, middle = n % 2 == 1 ? n * n / 2 : -1;
        const float share = 1.0F / static_cast<float>(middle < 0 ? n * n + 1 : n * n);
        const auto flush = [&] {
            std::array<Sample, Rays::kCount> samples;
            world_.trace(rays, spread_ / static_cast<float>(n), samples.data());
            for (int i = 0; i < rays.count; ++i)
                image_.light(y, owner[i]) += asVector(samples[i].radiance) * share;
            rays.count = 0;
        };
        for (int x = 0; x < middle_.cols; ++x) {
            if (isPlain(y, x)) continue;
            image_.light(y, x) *= share;
            for (int k = 0; k < n * n; ++k) {
                if (k == middle) continue;
                owner[rays.count] = x;
                rays.add(centre_, towards(grid_.rays(y * n + k / n, x * n + k % n) + offset_));
                if (rays.count == Rays::kCount) flush();
            }
        }
        flush();
    }

    const World& world_;
    const synthesis::RayGrid& grid_;
    cv::Vec2f offset_;
    cv::Mat_<cv::Vec2f> middle_;
    cv::Matx33f world_camera_;
    cv::Vec3f centre_;
    float seconds_;
    Interruption* interruption_;
    cv::Vec4f bands_;
    float spread_;
    std::vector<FirstSample> first_;
    RenderedImage image_;
};

}  // namespace

Pose colourPose(const Pose& depth, const cv::Matx33d& rotation, const cv::Vec3d& translation) {
    Pose colour;
    colour.camera_world = rotation * depth.camera_world;
    colour.centre = depth.centre - colour.camera_world.t() * translation;
    return colour;
}

cv::Vec2f middleRay(const synthesis::RayGrid& grid, int x, int y) {
    const int n = grid.samplesPerPixel, low = (n - 1) / 2, high = n / 2;
    const cv::Vec2f *upper = grid.rays[y * n + low] + x * n, *lower = grid.rays[y * n + high] + x * n;
    return (upper[low] + upper[high] + lower[low] + lower[high]) * 0.25F;
}

void forEachRow(int rows, const std::function<void(int)>& row, Interruption* interruption) {
    std::atomic<int> next{0};
    const auto work = [&] {
        for (int y = next++; y < rows && (interruption == nullptr || interruption->goOn()); y = next++)
            row(y);
    };
    std::vector<std::future<void>> helpers;
    for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i)
        helpers.push_back(std::async(std::launch::async, work));
    work();
    for (auto& helper : helpers)
        helper.wait();
}

RenderedImage renderImage(const World& world, const synthesis::RayGrid& grid, const Shot& shot) {
    RenderedImage image = ImageRenderer(world, grid, shot).render();
    if (shot.lensSigma > 0)
        cv::GaussianBlur(image.light, image.light, cv::Size(), shot.lensSigma, shot.lensSigma, cv::BORDER_REPLICATE);
    return image;
}

}  // namespace fieldcal::world
