#include "simulator/synthesis/Ground.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr float bladeFootprint = 0.0006F;  // radians that one sample covers

/// Share of a sample that a joint of `width` covers, at `offset` from the joint's middle.
float joint(float offset, float width, float footprint) {
    const float soft = std::max(footprint, width * 0.3F);
    return std::clamp((width * 0.5F + soft * 0.5F - std::abs(offset)) / soft, 0.0F, 1.0F) *
           std::min(1.0F, width / soft + 0.3F);
}

float fromEdge(float v, float pitch) {
    return v - std::round(v / pitch) * pitch;
}

Spectrum stained(const Spectrum& s, int column, int row, float contrast) {
    const float shared = (Noise::cell(column, row, 1) - 0.5F) * contrast;
    const float visible = (Noise::cell(column, row, 2) - 0.5F) * contrast * 0.7F;
    const float infrared = (Noise::cell(column, row, 3) - 0.5F) * contrast * 0.7F;
    return s.scaled(1 + shared + visible, 1 + shared + infrared);
}

}  // namespace

void Ground::castShadows(const Occluders& occluders) {
    shadows_ =
        ShadowMap(occluders, noise_, {-reach, eye_, -reach}, {1, 0, 0}, {0, 0, 1}, {2 * reach, 2 * reach}, 0.14F);
}

Spectrum Ground::slabs(float x, float z, float footprint) const {
    constexpr float across = 0.8F, along = 1.2F;
    const int row = static_cast<int>(std::floor(z / along));
    const float shifted = x + (row % 2 != 0 ? across * 0.5F : 0.0F);
    const int column = static_cast<int>(std::floor(shifted / across));
    const Spectrum slab = stained(mottled(materials::paving, noise_, x, z, 1.6F, footprint), column, row, 0.28F);
    const float gap =
        std::max(joint(fromEdge(shifted, across), 0.02F, footprint), joint(fromEdge(z, along), 0.02F, footprint));
    return slab * (1 - 0.55F * gap);
}

Spectrum Ground::cobbles(float x, float z, float footprint) const {
    constexpr float pitch = 0.14F;
    const float wavyX = x + 0.05F * noise_.value(x * 1.3F, z * 1.3F),
                wavyZ = z + 0.05F * noise_.value(z * 1.1F, x * 1.7F);
    const int row = static_cast<int>(std::floor(wavyZ / pitch));
    const float shifted = wavyX + (row % 2 != 0 ? pitch * 0.5F : 0.0F);
    const int column = static_cast<int>(std::floor(shifted / pitch));
    const float seen = std::clamp(1.3F - footprint / pitch, 0.0F, 1.0F);
    const Spectrum stone = stained(mottled(materials::stone, noise_, x, z, 2.5F, footprint), column, row, 0.5F * seen);
    const float gap =
        std::max(joint(fromEdge(shifted, pitch), 0.025F, footprint), joint(fromEdge(wavyZ, pitch), 0.025F, footprint));
    return stone * (1 - 0.6F * gap * seen);
}

Spectrum Ground::gravel(float x, float z, float footprint) const {
    const float trodden = 1 + 0.07F * noise_.fractal(x + 7, z - 9, 2.0F, footprint, 0.5F);
    return mottled(materials::gravel, noise_, x, z, 0.16F, footprint) * trodden;
}

Spectrum Ground::asphalt(float x, float z, float footprint) const {
    Spectrum s = mottled(materials::asphalt, noise_, x, z, 2.0F, footprint);
    const float crack = std::abs(noise_.fractal(x + 31, z - 7, 3.5F, footprint, 0.5F));
    s = s * (1 - 0.6F * smoothStep(0.03F, 0.0F, crack));
    const bool dash = fromEdge(z, 6.0F) > -1.5F && fromEdge(z, 6.0F) < 1.5F;
    const float line = dash ? joint(fromEdge(x - 2.2F, 9.0F), 0.14F, footprint) : 0.0F;
    return mix(s, materials::whitePaint.reflectance * 0.8F, line);
}

bool Ground::isLawn(float x, float z) const {
    const auto holds = [&](const Lawn& lawn) {
        return std::abs(x - lawn.centre[0]) < lawn.halfSize[0] && std::abs(z - lawn.centre[1]) < lawn.halfSize[1];
    };
    return paving_ == Paving::lawn || std::any_of(lawns_.begin(), lawns_.end(), holds);
}

/// Seen at a grazing angle, grass shows its blades upright: that texture lives in the view, not on the plane. Its
/// scale doubles with the distance, one scale fading into the next.
float Ground::blades(float x, float z, float distance, float shift) const {
    // Mirrored, so that it closes behind the viewer.
    const float azimuth = std::abs(std::atan2(x, z)), down = std::atan2(eye_, distance);
    const float level = std::log2(std::max(1.0F, distance)), lower = std::floor(level), t = level - lower;
    const auto at = [&](float metres) {
        return noise_.fractal(azimuth * metres * 1.7F + shift, down * metres, 0.22F, metres * bladeFootprint, 0.9F);
    };
    const float near = at(std::exp2(lower)), far = at(std::exp2(lower + 1));
    return near * std::sqrt(1 - t) + far * std::sqrt(t);
}

Spectrum Ground::grass(float x, float z, float footprint, float distance) const {
    const float tufts = noise_.fractal(x, z, 2.5F, footprint, 0.6F);
    const float bare = smoothStep(0.75F, 1.25F, noise_.fractal(x + 50, z + 20, 7.0F, 0.3F, 0.6F));
    const float dry = noise_.fractal(z - 15, x + 40, 4.0F, footprint, 0.6F);
    const float shared = 1 + 0.30F * blades(x, z, distance, 0) + 0.12F * tufts;
    const float visible = shared + 0.12F * blades(x, z, distance, 37.5F);
    Spectrum s = materials::grass.reflectance.scaled(std::max(0.15F, visible), std::max(0.2F, shared + 0.08F * dry));
    s.red *= 1 + 0.5F * std::max(0.0F, dry);
    return mix(s, mottled(materials::soil, noise_, x, z, 1.0F, footprint), bare);
}

Spectrum Ground::reflectanceAt(float x, float z, float footprint, float distance) const {
    for (const auto& lawn : lawns_) {
        const float dx = std::abs(x - lawn.centre[0]) - lawn.halfSize[0],
                    dz = std::abs(z - lawn.centre[1]) - lawn.halfSize[1];
        const float outside = std::max(dx, dz);
        if (outside < 0) return grass(x, z, footprint, distance);
        if (outside < 0.18F) return mottled(materials::concrete, noise_, x, z, 0.8F, footprint) * 1.15F;
    }
    switch (paving_) {
        case Paving::slabs:
            return slabs(x, z, footprint);
        case Paving::cobbles:
            return cobbles(x, z, footprint);
        case Paving::asphalt:
            return asphalt(x, z, footprint);
        case Paving::gravel:
            return gravel(x, z, footprint);
        case Paving::lawn:
            break;
    }
    const float path = std::abs(noise_.fractal(x * 0.5F + 3, z * 0.5F, 14.0F, 1.0F, 0.4F));
    if (path < 0.10F) return gravel(x, z, footprint);
    return grass(x, z, footprint, distance);
}

Spectrum Ground::radiance(float x, float z, float footprint, const Light& light) const {
    Surface surface;
    surface.reflectance = reflectanceAt(x, z, footprint, std::sqrt(x * x + z * z));
    const bool mapped = std::abs(x) < reach && std::abs(z) < reach;
    surface.sunlight = mapped ? shadows_.at(x + reach, z + reach) : 1;
    return lit(surface, light, -light.toSun[1]);
}

}  // namespace fieldcal::synthesis
