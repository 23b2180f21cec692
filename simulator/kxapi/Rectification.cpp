#include "simulator/kxapi/Rectification.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace kxsim {
namespace {

constexpr std::uint32_t kInside = 1U << 31;
constexpr int kShiftX = 20;
constexpr int kShiftY = 10;
constexpr int kShiftFractionX = 5;
constexpr std::uint32_t kMaskX = 0x7FF;
constexpr std::uint32_t kMaskY = 0x3FF;
constexpr std::uint32_t kMaskFraction = 31;
constexpr int kSteps = 32;

const cv::Vec2s kOutside(-100, -100);

struct Point {
    double x, y;
};

Point distorted(const KXCalibIntrinsicsNonRectified& raw, Point p) {
    const double xx = p.x * p.x;
    const double yy = p.y * p.y;
    const double xy = p.x * p.y;
    const double r2 = xx + yy;
    const double radial = 1 + r2 * (raw.k1 + r2 * (raw.k2 + r2 * raw.k3));
    return {p.x * radial + 2 * raw.p1 * xy + raw.p2 * (r2 + 2 * xx),
            p.y * radial + raw.p1 * (r2 + 2 * yy) + 2 * raw.p2 * xy};
}

/// Returns a coordinate in steps of 1/32 pixel, or -1 outside 0 … size - 1. The centre of the last pixel is moved
/// inside by one step.
int steps(double coordinate, int size) {
    if (!(coordinate >= -0.5 / kSteps && coordinate <= size - 1 + 0.5 / kSteps)) return -1;
    return std::min(static_cast<int>(2 * kSteps * coordinate + 1) / 2, (size - 1) * kSteps - 1);
}

std::uint32_t entry(int stepsX, int stepsY) {
    if (stepsX < 0 || stepsY < 0) return 0;
    const auto x = static_cast<std::uint32_t>(stepsX);
    const auto y = static_cast<std::uint32_t>(stepsY);
    return kInside | (x / kSteps) << kShiftX | (y / kSteps) << kShiftY | (x % kSteps) << kShiftFractionX | y % kSteps;
}

}  // namespace

void fillRectificationTable(const KXCalibIntrinsicsNonRectified& raw, const double* rotation,
                            const KXCalibIntrinsicsRectified& rectified, std::uint32_t* table) {
    const bool fits = raw.w >= 2 && raw.h >= 2 && raw.w <= 2048 && raw.h <= 1024;
    const double* r = rotation;
    for (int v = 0; v < rectified.h; ++v) {
        const double b = (v - double{rectified.cy}) / rectified.fy;
        for (int u = 0; u < rectified.w; ++u) {
            const double a = (u - double{rectified.cx}) / rectified.fx;
            const double z = r[2] * a + r[5] * b + r[8];
            const Point p = distorted(raw, {(r[0] * a + r[3] * b + r[6]) / z, (r[1] * a + r[4] * b + r[7]) / z});
            const int x = steps(raw.fx * p.x + raw.cx, raw.w);
            const int y = steps(raw.fy * p.y + raw.cy, raw.h);
            *table++ = fits && z > 0 ? entry(x, y) : 0;
        }
    }
}

void rectify(const std::uint32_t* table, const std::uint8_t* source, std::int32_t pitchPixels, std::int32_t width,
             std::int32_t height, std::uint8_t* destination) {
    if (width < 2 || height < 2 || pitchPixels < width) return;
    cv::Mat points(height, width, CV_16SC2);
    cv::Mat fractions(height, width, CV_16UC1);
    for (int row = 0; row < height; ++row) {
        auto* point = points.ptr<cv::Vec2s>(row);
        auto* fraction = fractions.ptr<std::uint16_t>(row);
        for (int column = 0; column < width; ++column, ++table) {
            const auto x = static_cast<int>(*table >> kShiftX & kMaskX);
            const auto y = static_cast<int>(*table >> kShiftY & kMaskY);
            const bool inside = (*table & kInside) != 0 && x < width - 1 && y < height - 1;
            point[column] = inside ? cv::Vec2s(static_cast<short>(x), static_cast<short>(y)) : kOutside;
            const std::uint32_t fractionX = *table >> kShiftFractionX & kMaskFraction;
            fraction[column] = static_cast<std::uint16_t>((*table & kMaskFraction) * kSteps + fractionX);
        }
    }
    const std::size_t pitch = std::size_t{4} * static_cast<std::size_t>(pitchPixels);
    const cv::Mat from(height, width, CV_8UC4, const_cast<std::uint8_t*>(source), pitch);
    cv::Mat to(height, width, CV_8UC4, destination, pitch);
    cv::remap(from, to, points, fractions, cv::INTER_LINEAR, cv::BORDER_CONSTANT, cv::Scalar(0, 0, 0, 255));
}

}  // namespace kxsim
