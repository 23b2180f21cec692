#include "simulator/synthesis/Panorama.h"

#include "simulator/synthesis/Noise.h"

#include <array>
#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr int width = Panorama::columnsOfTiles * Panorama::tileTexels;
constexpr int height = Panorama::rowsOfTiles * Panorama::tileTexels;
constexpr int tileEdge = Panorama::tileTexels + 1;  // one more row and column, so that interpolation stays inside
constexpr float fullScale = 4.0F;                   // the radiance that a 16-bit texel can hold

std::uint16_t quantised(float v) {
    return static_cast<std::uint16_t>(std::lround(std::clamp(v, 0.0F, fullScale) * (65535.0F / fullScale)));
}

/// Each texel looks at a random place within itself: edges turn into grain instead of stairs.
cv::Vec3f directionOfTexel(int column, int row) {
    const int wrapped = column % width;
    const float x = static_cast<float>(wrapped) + Noise::cell(wrapped, row, 901) - 0.5F;
    const float y = static_cast<float>(row) + Noise::cell(wrapped, row, 902) - 0.5F;
    const float azimuth = x / static_cast<float>(Panorama::texelsPerRadian);
    const float elevation = (height * 0.5F - y) / static_cast<float>(Panorama::texelsPerRadian);
    return {std::cos(elevation) * std::sin(azimuth), -std::sin(elevation), std::cos(elevation) * std::cos(azimuth)};
}

}  // namespace

struct Panorama::Tile {
    std::array<std::array<std::uint16_t, 4>, static_cast<std::size_t>(tileEdge) * tileEdge> texels;
};

Panorama::Panorama(const DirectionField& field) : field_(field), tiles_(std::size_t{columnsOfTiles} * rowsOfTiles) {}
Panorama::~Panorama() = default;

std::unique_ptr<Panorama::Tile> Panorama::compute(int column, int row) const {
    auto made = std::make_unique<Tile>();
    for (int y = 0; y < tileEdge; ++y)
        for (int x = 0; x < tileEdge; ++x) {
            const Spectrum s = field_.radiance(directionOfTexel(column * tileTexels + x, row * tileTexels + y));
            made->texels[y * tileEdge + x] = {quantised(s.red), quantised(s.green), quantised(s.blue),
                                              quantised(s.infrared)};
        }
    return made;
}

const Panorama::Tile& Panorama::tile(int column, int row) {
    auto& slot = tiles_[row * columnsOfTiles + column];
    if (!slot) slot = compute(column, row);
    return *slot;
}

Spectrum Panorama::sample(const cv::Vec3f& d) {
    constexpr float scale = static_cast<float>(texelsPerRadian);
    float x = std::atan2(d[0], d[2]) * scale;
    if (x < 0) x += static_cast<float>(width);
    const float elevation = std::atan2(-d[1], std::sqrt(d[0] * d[0] + d[2] * d[2]));
    const float y = std::clamp(height * 0.5F - elevation * scale, 0.0F, height - 1.001F);
    const int column = std::min(static_cast<int>(x), width - 1), row = static_cast<int>(y);
    const float u = x - static_cast<float>(column), v = y - static_cast<float>(row);

    const Tile& from = tile(column / tileTexels, row / tileTexels);
    const auto* texel = &from.texels[(row % tileTexels) * tileEdge + column % tileTexels];
    std::array<float, 4> out{};
    for (int band = 0; band < 4; ++band) {
        const float top = static_cast<float>(texel[0][band]) * (1 - u) + static_cast<float>(texel[1][band]) * u;
        const float bottom =
            static_cast<float>(texel[tileEdge][band]) * (1 - u) + static_cast<float>(texel[tileEdge + 1][band]) * u;
        out[band] = (top * (1 - v) + bottom * v) * (fullScale / 65535.0F);
    }
    return {out[0], out[1], out[2], out[3]};
}

}  // namespace fieldcal::synthesis
