#pragma once

#include "simulator/synthesis/DirectionField.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace fieldcal::synthesis {

/// A field of directions sampled once on an equirectangular grid, from which every camera takes its picture.
/// Tiles are computed when a camera first looks at them. One thread at a time.
class Panorama {
public:
    /// Three texels for one infrared pixel.
    static constexpr int tileTexels = 128;
    static constexpr int columnsOfTiles = 84;
    static constexpr int rowsOfTiles = 28;
    static constexpr double texelsPerRadian = columnsOfTiles * tileTexels / 6.283185307179586;

    explicit Panorama(const DirectionField& field);
    ~Panorama();

    /// Interpolated between texels. `direction` need not have length 1. Elevations beyond 59° repeat the last row.
    Spectrum sample(const cv::Vec3f& direction);

private:
    struct Tile;
    const Tile& tile(int column, int row);
    std::unique_ptr<Tile> compute(int column, int row) const;

    const DirectionField& field_;
    std::vector<std::unique_ptr<Tile>> tiles_;
};

}  // namespace fieldcal::synthesis
