#pragma once

#include <array>
#include <cstdint>

namespace fieldcal::synthesis {

/// Smooth random fields over a plane, reproducible for a seed. Any thread.
class Noise {
public:
    explicit Noise(std::uint64_t seed);

    /// One octave with a wavelength of about 1, within −1 … 1.
    float value(float x, float y) const;

    /// Sums octaves from the wavelength `coarse` down to twice `footprint` (the size of one sample), so that nothing
    /// finer than a sample can alias. Each octave has `gain` times the amplitude of the previous one. About −1 … 1.
    float fractal(float x, float y, float coarse, float footprint, float gain = 0.6F) const;

    /// Returns a number in [0, 1) for a cell of a grid; `what` selects independent numbers for the same cell.
    static float cell(int column, int row, std::uint32_t what);

private:
    float lattice(int x, int y) const { return table_[(permutation_[x & 255] + y) & 255]; }

    std::array<float, 256> table_{};
    std::array<int, 256> permutation_{};
};

}  // namespace fieldcal::synthesis
