#include "simulator/synthesis/Sky.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr int kRidgeCount = 3;

float ridgeLine(const Noise& noise, int number, float azimuth, float footprint) {
    const auto n = static_cast<float>(number);
    const float base = 0.45F + 0.28F * n;
    return base + 0.3F * noise.fractal(azimuth * 3 + 11 * n, 3.7F * n, 2.0F, footprint * 3, 0.5F);
}

}  // namespace

Spectrum Backdrop::throughAir(const Spectrum& light, float metres) {
    const float visible = 1 - std::exp(-metres / 4000.0F), infrared = 1 - std::exp(-metres / 9000.0F);
    Spectrum out = light.scaled(1 - visible, 1 - infrared);
    return out += haze().scaled(visible, infrared);
}

Spectrum Backdrop::skyOnly(const cv::Vec3f& d, float footprint, const cv::Vec2f& drift) const {
    const float up = std::max(0.0F, -d[1]);
    const Spectrum zenith{0.16F, 0.30F, 0.62F, 0.07F}, horizon{0.62F, 0.72F, 0.84F, 0.24F};
    Spectrum sky = mix(horizon, zenith, std::pow(up, 0.55F) * 1.15F);
    // Clouds lie on a horizontal plane overhead, so they shrink towards the horizon.
    const float reach = 1.0F / (up + 0.12F);
    const float x = d[0] * reach + drift[0], y = d[2] * reach + drift[1];
    const float density = noise_.fractal(x, y * 1.6F, 1.1F, footprint * reach * 2, 0.62F) + (cloudiness_ - 0.5F) * 1.6F;
    const float cover = smoothStep(0.1F, 0.9F, density);
    const float body = 0.75F + 0.22F * noise_.fractal(x + 9, y, 0.35F, footprint * reach * 2, 0.6F);
    return mix(sky, Spectrum{0.97F, 0.97F, 0.98F, 0.80F} * body, cover);
}

Spectrum Backdrop::ridge(int number, float azimuth, float elevation, float footprint) const {
    const float metres = 600.0F + 2200.0F * static_cast<float>(number);
    const float x = azimuth * 40, y = elevation * 90;
    const float woods = noise_.fractal(x, y, 3.0F, footprint * 60, 0.5F);
    const float grain = noise_.fractal(x * 3, y * 3, 1.2F, footprint * 150, 0.8F);
    const Spectrum forest = Spectrum{0.05F, 0.075F, 0.04F, 0.26F} * (1 + 0.45F * grain);
    const Spectrum meadow = Spectrum{0.17F, 0.20F, 0.09F, 0.46F} * (1 + 0.15F * grain);
    return throughAir(mix(forest, meadow, smoothStep(0.25F, 0.45F, woods)), metres);
}

Spectrum Backdrop::radiance(const cv::Vec3f& d, float footprint, const cv::Vec2f& drift) const {
    const float elevation = std::asin(std::clamp(-d[1], -1.0F, 1.0F));
    if (ridgeHeight_ > 0 && elevation < ridgeHeight_ * 2) {
        const float azimuth = std::abs(std::atan2(d[0], d[2]));  // mirrored, so that it is continuous behind the viewer
        for (int number = 0; number < kRidgeCount; ++number)
            if (elevation < ridgeHeight_ * ridgeLine(noise_, number, azimuth, footprint))
                return ridge(number, azimuth, elevation, footprint);
    }
    return skyOnly(d, footprint, drift);
}

}  // namespace fieldcal::synthesis
