#include "session/Nv12.h"

#include <algorithm>
#include <cstddef>

namespace fieldcal::session {
namespace {

constexpr int kShift = 16;

constexpr int fixed(double value) {
    return static_cast<int>(value * (1 << kShift) + (value < 0 ? -0.5 : 0.5));
}

constexpr double kRed = 0.299;
constexpr double kBlue = 0.114;
constexpr double kGreen = 1 - kRed - kBlue;
constexpr double kLuma = 219.0 / 255;
constexpr double kChroma = 112.0 / 255;

std::uint8_t clamped(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

std::uint8_t luma(const std::uint8_t* bgra) {
    constexpr int r = fixed(kRed * kLuma);
    constexpr int g = fixed(kGreen * kLuma);
    constexpr int b = fixed(kBlue * kLuma);
    constexpr int offset = (16 << kShift) + (1 << (kShift - 1));
    return static_cast<std::uint8_t>((r * bgra[2] + g * bgra[1] + b * bgra[0] + offset) >> kShift);
}

/// `sums`: the sums of blue, green and red over four pixels. The weights of each row add up to zero, so grey gives
/// exactly 128.
void chroma(const int sums[3], std::uint8_t* uv) {
    constexpr int uRed = fixed(-kChroma * kRed / (1 - kBlue));
    constexpr int uBlue = fixed(kChroma);
    constexpr int vRed = fixed(kChroma);
    constexpr int vBlue = fixed(-kChroma * kBlue / (1 - kRed));
    constexpr int offset = (128 << (kShift + 2)) + (1 << (kShift + 1));
    const int blue = sums[0] - sums[1];
    const int red = sums[2] - sums[1];
    uv[0] = clamped((uBlue * blue + uRed * red + offset) >> (kShift + 2));
    uv[1] = clamped((vBlue * blue + vRed * red + offset) >> (kShift + 2));
}

void toBgra(int y, int u, int v, std::uint8_t* bgra) {
    constexpr int half = 1 << (kShift - 1);
    const int scaled = fixed(1 / kLuma) * (y - 16) + half;
    const int blue = u - 128;
    const int red = v - 128;
    bgra[0] = clamped((scaled + fixed((1 - kBlue) / kChroma) * blue) >> kShift);
    bgra[1] = clamped((scaled - fixed(kBlue * (1 - kBlue) / kGreen / kChroma) * blue -
                       fixed(kRed * (1 - kRed) / kGreen / kChroma) * red) >>
                      kShift);
    bgra[2] = clamped((scaled + fixed((1 - kRed) / kChroma) * red) >> kShift);
    bgra[3] = 255;
}

}  // namespace

void nv12FromBgra(const std::uint8_t* bgra, int width, int height, std::uint8_t* nv12) {
    const std::ptrdiff_t pitch = std::ptrdiff_t{4} * width;
    const std::ptrdiff_t pixels = std::ptrdiff_t{width} * height;
    for (std::ptrdiff_t i = 0; i < pixels; ++i)
        nv12[i] = luma(bgra + 4 * i);
    std::uint8_t* uv = nv12 + pixels;
    for (int y = 0; y < height; y += 2) {
        const std::uint8_t* row = bgra + y * pitch;
        for (int x = 0; x < width; x += 2, row += 8, uv += 2) {
            int sums[3];
            for (int c = 0; c < 3; ++c)
                sums[c] = row[c] + row[c + 4] + row[c + pitch] + row[c + pitch + 4];
            chroma(sums, uv);
        }
    }
}

void bgraFromNv12(const std::uint8_t* nv12, int width, int height, std::uint8_t* bgra) {
    const std::uint8_t* chromaRows = nv12 + std::ptrdiff_t{width} * height;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* uv = chromaRows + std::ptrdiff_t{y / 2} * width;
        for (int x = 0; x < width; ++x, bgra += 4)
            toBgra(*nv12++, uv[x & ~1], uv[(x & ~1) + 1], bgra);
    }
}

}  // namespace fieldcal::session
