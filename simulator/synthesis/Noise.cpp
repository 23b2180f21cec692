#include "simulator/synthesis/Noise.h"

#include "simulator/synthesis/Random.h"

#include <cmath>
#include <utility>

namespace fieldcal::synthesis {

namespace {

int floorOf(float v) {
    const int truncated = static_cast<int>(v);
    return truncated - (v < static_cast<float>(truncated) ? 1 : 0);
}

float fade(float t) {
    return t * t * (3 - 2 * t);
}

}  // namespace

Noise::Noise(std::uint64_t seed) {
    Random random(seed, "noise");
    for (int i = 0; i < 256; ++i) {
        table_[i] = random.between(-1, 1);
        permutation_[i] = i;
    }
    for (int i = 255; i > 0; --i)
        std::swap(permutation_[i], permutation_[random.index(i + 1)]);
}

float Noise::value(float x, float y) const {
    const int column = floorOf(x), row = floorOf(y);
    const float u = fade(x - static_cast<float>(column)), v = fade(y - static_cast<float>(row));
    const float top = lattice(column, row) * (1 - u) + lattice(column + 1, row) * u;
    const float bottom = lattice(column, row + 1) * (1 - u) + lattice(column + 1, row + 1) * u;
    return top * (1 - v) + bottom * v;
}

float Noise::fractal(float x, float y, float coarse, float footprint, float gain) const {
    constexpr int mostOctaves = 9;
    constexpr float cosine = 0.8F, sine = 0.6F;  // rotation between octaves, which hides the lattice
    float sum = 0, amplitude = 1, power = 0;
    float u = x / coarse, v = y / coarse, wavelength = coarse;
    for (int octave = 0; octave < mostOctaves && wavelength > 2 * footprint; ++octave) {
        sum += amplitude * value(u, v);
        power += amplitude * amplitude;
        amplitude *= gain;
        wavelength *= 0.5F;
        const float turned = 2 * (cosine * u - sine * v) + 17.3F;
        v = 2 * (sine * u + cosine * v) + 5.7F;
        u = turned;
    }
    return power > 0 ? sum / std::sqrt(power) : 0;
}

float Noise::cell(int column, int row, std::uint32_t what) {
    std::uint32_t h = static_cast<std::uint32_t>(column) * 0x9e3779b1U ^ static_cast<std::uint32_t>(row) * 0x85ebca77U;
    h ^= what * 0xc2b2ae3dU;
    h = (h ^ (h >> 15)) * 0x2c1b3c6dU;
    h = (h ^ (h >> 12)) * 0x297a2d39U;
    return static_cast<float>((h ^ (h >> 15)) >> 8) * 0x1p-24F;
}

}  // namespace fieldcal::synthesis
