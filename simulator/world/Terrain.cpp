#include "simulator/world/Terrain.h"

#include "simulator/synthesis/Spectrum.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

Terrain::Terrain(const synthesis::Noise& noise, synthesis::Random& random)
    : noise_(noise),
      valley_(random.between(150, 260)),
      rise_(random.between(0.8F, 1.15F)),
      shiftX_(random.between(-9000, 9000)),
      shiftZ_(random.between(-9000, 9000)) {}

float Terrain::height(float x, float z) const {
    const float distance = std::sqrt(x * x + z * z);
    // The crests of the ridges lie where a smooth random field crosses zero.
    float ridges = 0, wavelength = 2600, amplitude = 1, steep = 1;
    float u = x + shiftX_, v = z + shiftZ_;
    for (int octave = 0; octave < 9; ++octave) {
        const float crest = 1 - std::abs(noise_.value(u / wavelength, v / wavelength)) * 1.6F;
        ridges += amplitude * crest * steep;
        steep = std::clamp(crest, 0.15F, 1.0F);
        amplitude *= 0.47F, wavelength *= 0.5F;
        const float turned = 0.8F * u - 0.6F * v + 311.0F;
        v = 0.6F * u + 0.8F * v - 173.0F;
        u = turned;
    }
    const float away = 0.22F + 0.78F * synthesis::smoothStep(200, 3800, distance);
    const float mountain = away * 620 * ridges * rise_;
    const float hummocks = 34 * noise_.fractal(x + shiftX_, z + shiftZ_, 260, 1, 0.45F);
    // The viewer stands above an edge. The ground below is kept low, so that nothing comes near.
    const float lowest = -108 + 0.9F * std::max(0.0F, distance - 260);
    return std::min(-valley_ + mountain + hummocks, lowest);
}

}  // namespace fieldcal::world
