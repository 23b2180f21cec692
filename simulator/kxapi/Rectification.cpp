#include "simulator/kxapi/Rectification.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <future>

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
constexpr std::uint32_t kBlack = 0xFF000000U;  // little-endian BGRA

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

/// A coordinate in steps of 1/32 pixel, or -1 outside 0 … size - 1. The last pixel's centre moves inside by one step.
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

using Words = std::uint16_t __attribute__((vector_size(16)));
using Bytes = std::uint8_t __attribute__((vector_size(8)));

/// Weights for eight words: two BGRA pixels side by side.
struct Weights {
    std::array<Words, kSteps> x;  ///< 32 - f for the left pixel, f for the right one
    std::array<Words, kSteps> y;  ///< f everywhere
};

Weights makeWeights() {
    Weights out{};
    for (std::uint16_t f = 0; f < kSteps; ++f) {
        const auto g = static_cast<std::uint16_t>(kSteps - f);
        out.x[f] = Words{g, g, g, g, f, f, f, f};
        out.y[f] = Words{f, f, f, f, f, f, f, f};
    }
    return out;
}

Words twoPixels(const std::uint8_t* source) {
    Bytes bytes;
    std::memcpy(&bytes, source, sizeof(bytes));
    return __builtin_convertvector(bytes, Words);
}

/// Everything fits into 16 bits: 255 · 32, brought down to quarters of a grey level, times 32 again. The quarters are
/// cut off, which makes up for what rounding quarters to the nearest adds on average.
std::uint32_t interpolate(const std::uint8_t* upper, const std::uint8_t* lower, const Words& weightsX,
                          const Words& weightsY) {
    const Words top = twoPixels(upper);
    const Words column = top * kSteps + (twoPixels(lower) - top) * weightsY;
    const Words weighted = (column >> 3) * weightsX;
    const Words swapped = __builtin_shufflevector(weighted, weighted, 4, 5, 6, 7, 0, 1, 2, 3);
    const Bytes bytes = __builtin_convertvector((weighted + swapped + 64) >> 7, Bytes);
    std::uint32_t pixel;
    std::memcpy(&pixel, &bytes, sizeof(pixel));
    return pixel;
}

struct Picture {
    const std::uint32_t* table;
    const std::uint8_t* source;
    std::int32_t pitchPixels, width, height;
    std::uint8_t* destination;
};

void rectifyRows(const Picture& picture, std::int32_t first, std::int32_t end) {
    static const Weights weights = makeWeights();
    const std::size_t pitch = std::size_t{4} * static_cast<std::size_t>(picture.pitchPixels);
    const auto lastX = static_cast<std::uint32_t>(picture.width - 1);
    const auto lastY = static_cast<std::uint32_t>(picture.height - 1);
    for (auto row = static_cast<std::size_t>(first); row < static_cast<std::size_t>(end); ++row) {
        const std::uint32_t* table = picture.table + row * static_cast<std::size_t>(picture.width);
        std::uint8_t* target = picture.destination + row * pitch;
        for (std::int32_t column = 0; column < picture.width; ++column, target += 4) {
            const std::uint32_t from = *table++;
            const std::uint32_t x = from >> kShiftX & kMaskX;
            const std::uint32_t y = from >> kShiftY & kMaskY;
            std::uint32_t pixel = kBlack;
            if ((from & kInside) != 0 && x < lastX && y < lastY) {
                const std::uint8_t* upper = picture.source + y * pitch + std::size_t{4} * x;
                pixel = interpolate(upper, upper + pitch, weights.x[from >> kShiftFractionX & kMaskFraction],
                                    weights.y[from & kMaskFraction]);
            }
            std::memcpy(target, &pixel, sizeof(pixel));
        }
    }
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
    const Picture picture{table, source, pitchPixels, width, height, destination};
    auto lower = std::async(std::launch::async, rectifyRows, std::cref(picture), height / 2, height);
    rectifyRows(picture, 0, height / 2);
    lower.get();
}

}  // namespace kxsim
