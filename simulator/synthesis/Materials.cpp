#include "simulator/synthesis/Materials.h"

namespace fieldcal::synthesis {

Spectrum mottled(const Material& material, const Noise& noise, float x, float y, float coarse, float footprint) {
    const float shared = 1 + material.shared * 1.8F * noise.fractal(x, y, coarse, footprint, 0.72F);
    const float visible =
        material.visible * 1.6F * noise.fractal(y + 71.3F, x - 13.1F, coarse * 0.4F, footprint, 0.72F);
    const float infrared =
        material.infrared * 1.6F * noise.fractal(x - 37.9F, y + 91.7F, coarse * 0.4F, footprint, 0.72F);
    return material.reflectance.scaled(std::max(0.1F, shared + visible), std::max(0.1F, shared + infrared));
}

}  // namespace fieldcal::synthesis
