#include "kxapi/Library.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace {

using Rotation = std::array<double, 9>;

constexpr Rotation kIdentity{1, 0, 0, 0, 1, 0, 0, 0, 1};

/// R = Rz · Ry · Rx, degrees.
Rotation rotation(double ax, double ay, double az) {
    const double d = std::acos(-1.0) / 180;
    const double cx = std::cos(ax * d), sx = std::sin(ax * d), cy = std::cos(ay * d), sy = std::sin(ay * d);
    const double cz = std::cos(az * d), sz = std::sin(az * d);
    return {cz * cy,
            cz * sy * sx - sz * cx,
            cz * sy * cx + sz * sx,
            sz * cy,
            sz * sy * sx + cz * cx,
            sz * sy * cx - cz * sx,
            -sy,
            cy * sx,
            cy * cx};
}

struct Image {
    int width, height;
    std::vector<std::uint8_t> bgra;

    std::uint8_t at(int x, int y, int c) const { return bgra[std::size_t{4} * (std::size_t{1} * y * width + x) + c]; }
};

/// A smooth image, different in every channel, alpha 255.
Image smoothImage(int width, int height) {
    Image out{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < 3; ++c) {
                const double value = 127.5 + 127.4 * std::sin(0.02 * (c + 1) * x + 0.5 * c) * std::cos(0.03 * y - c);
                out.bgra.push_back(static_cast<std::uint8_t>(std::lround(value)));
            }
            out.bgra.push_back(255);
        }
    }
    return out;
}

class Rectification : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(library, nullptr) << why; }

    Image rectified(const Image& source, const KXCalibIntrinsicsNonRectified& raw, const Rotation& r,
                    const KXCalibIntrinsicsRectified& rect) const {
        std::vector<std::uint32_t> table(source.bgra.size() / 4);
        library->rectificationTable(&raw, r.data(), &rect, table.data());
        Image out{source.width, source.height, std::vector<std::uint8_t>(source.bgra.size(), 77)};
        library->rectifyBGRA8ToBGRA8(table.data(), source.bgra.data(), source.width, source.width, source.height,
                                     out.bgra.data());
        return out;
    }

    std::string why;
    std::shared_ptr<const KXLibrary> library = KXLibrary::load(&why);
};

/// Reference for the raw position of a rectified pixel, step by step in double precision.
std::array<double, 2> rawPoint(const KXCalibIntrinsicsNonRectified& k, const Rotation& r,
                               const KXCalibIntrinsicsRectified& rect, int u, int v) {
    const double ray[3] = {(u - double{rect.cx}) / rect.fx, (v - double{rect.cy}) / rect.fy, 1};
    double X[3] = {0, 0, 0};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j)
            X[i] += r[3 * j + i] * ray[j];
    }
    const double x = X[0] / X[2], y = X[1] / X[2];
    const double r2 = x * x + y * y, r4 = r2 * r2, r6 = r4 * r2;
    const double factor = 1 + k.k1 * r2 + k.k2 * r4 + k.k3 * r6;
    const double xd = x * factor + 2 * k.p1 * x * y + k.p2 * (r2 + 2 * x * x);
    const double yd = y * factor + k.p1 * (r2 + 2 * y * y) + 2 * k.p2 * x * y;
    return {k.fx * xd + k.cx, k.fy * yd + k.cy};
}

double bilinear(const Image& p, double x, double y, int c) {
    const int ix = std::min(static_cast<int>(x), p.width - 2), iy = std::min(static_cast<int>(y), p.height - 2);
    const double fx = x - ix, fy = y - iy;
    return (1 - fy) * ((1 - fx) * p.at(ix, iy, c) + fx * p.at(ix + 1, iy, c)) +
           fy * ((1 - fx) * p.at(ix, iy + 1, c) + fx * p.at(ix + 1, iy + 1, c));
}

TEST_F(Rectification, AgreesWithASlowReference) {
    const KXCalibIntrinsicsNonRectified raw{942.8F, 940.1F, 644.97F, 357.3F, 1280, 720,
                                            0.06F,  -0.09F, -0.004F, 0.006F, 0.02F};
    const KXCalibIntrinsicsRectified rect{928, 931, 640, 360, 1280, 720};
    const Rotation r = rotation(1.5, -2, 3);
    const Image source = smoothImage(1280, 720);
    const Image out = rectified(source, raw, r, rect);
    int inside = 0;
    for (int v = 0; v < 720; ++v) {
        for (int u = 0; u < 1280; ++u) {
            const auto [x, y] = rawPoint(raw, r, rect, u, v);
            ASSERT_EQ(out.at(u, v, 3), 255);
            if (x < -0.02 || y < -0.02 || x > 1279.02 || y > 719.02) {
                ASSERT_EQ(out.at(u, v, 0) + out.at(u, v, 1) + out.at(u, v, 2), 0) << u << " " << v;
            } else if (x > 0.02 && y > 0.02 && x < 1278.98 && y < 718.98) {
                ++inside;
                for (int c = 0; c < 3; ++c) {
                    ASSERT_NEAR(out.at(u, v, c), bilinear(source, x, y, c), 1.1) << u << " " << v;
                }
            }
        }
    }
    EXPECT_GT(inside, 800000);
    EXPECT_LT(inside, 900000);
}

TEST_F(Rectification, ShiftsNothingOnAverage) {
    // Steep ramps reveal the position; biased rounding would shift every image by half a step.
    const KXCalibIntrinsicsNonRectified raw{942.78F, 942.78F, 645.02F, 357.37F, 1280, 720, 0, 0, 0, 0, 0};
    const KXCalibIntrinsicsRectified rect{928, 928, 640, 360, 1280, 720};
    Image ramps{1280, 720, std::vector<std::uint8_t>(std::size_t{1280} * 720 * 4)};
    for (std::size_t i = 0; i < ramps.bgra.size(); i += 4) {
        ramps.bgra[i] = static_cast<std::uint8_t>(7 * (i / 4 % 1280 % 32));
        ramps.bgra[i + 1] = static_cast<std::uint8_t>(7 * (i / 4 / 1280 % 32));
    }
    const Image out = rectified(ramps, raw, kIdentity, rect);
    for (int c = 0; c < 2; ++c) {
        double sum = 0;
        int count = 0;
        for (int v = 10; v < 700; ++v) {
            for (int u = 10; u < 1250; ++u) {
                const double inRamp = std::fmod(rawPoint(raw, kIdentity, rect, u, v)[c == 0 ? 0 : 1], 32);
                if (inRamp < 1 || inRamp > 30) continue;
                sum += out.at(u, v, c) / 7.0 - inRamp;
                ++count;
            }
        }
        EXPECT_GT(count, 700000);
        EXPECT_NEAR(sum / count, 0, 0.005) << "pixels";
    }
}

TEST_F(Rectification, NonsenseGivesBlack) {
    const KXCalibIntrinsicsNonRectified good{400, 400, 64, 32, 128, 64, 0, 0, 0, 0, 0};
    const KXCalibIntrinsicsRectified rect{400, 400, 64, 32, 128, 64};
    const Image source = smoothImage(128, 64);
    KXCalibIntrinsicsNonRectified raw = good;
    raw.k3 = NAN;
    KXCalibIntrinsicsRectified flat = rect;
    flat.fx = 0;
    KXCalibIntrinsicsNonRectified huge = good;
    huge.w = 4096;
    const Image images[] = {rectified(source, raw, kIdentity, rect), rectified(source, good, kIdentity, flat),
                            rectified(source, huge, kIdentity, rect),
                            rectified(source, good, rotation(0, 180, 0), rect), rectified(source, good, {}, rect)};
    for (const Image& image : images)
        EXPECT_EQ(image.at(64, 40, 0) + image.at(5, 5, 1), 0);
    // A table of random entries must not read outside the source.
    std::mt19937 random(5);
    std::vector<std::uint32_t> table(std::size_t{128} * 64);
    for (std::uint32_t& entry : table)
        entry = random();
    Image out = source;
    library->rectifyBGRA8ToBGRA8(table.data(), source.bgra.data(), 128, 128, 64, out.bgra.data());
    EXPECT_NE(out.bgra, source.bgra);
}

}  // namespace
