#include "simulator/world/GroundMaterials.h"

#include "simulator/world/Materials.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

using synthesis::Noise;
using synthesis::smoothStep;
using synthesis::Spectrum;

Look Paving::at(const Place& place) const {
    const float x = place.texture[0], z = place.texture[1];
    const int row = static_cast<int>(std::floor(z / stones_.width));
    const float shifted = x + stones_.length * Noise::cell(row, 0, 70);
    const int column = static_cast<int>(std::floor(shifted / stones_.length));
    const float u = shifted - static_cast<float>(column) * stones_.length;
    const float v = z - static_cast<float>(row) * stones_.width;
    const float seen = std::clamp(1.5F - place.footprint / stones_.width, 0.0F, 1.0F);
    const auto draw = [&](std::uint32_t what) { return seen * (Noise::cell(column, row, what) - 0.5F); };
    Look look;
    const float shared = 1 + 0.4F * draw(71);
    Spectrum stone = mottled(stones_.stone, noise_, x, z, 2.5F, place.footprint)
                         .scaled(shared + 0.2F * draw(72), shared + 0.2F * draw(73));
    const float joint = std::max(stones_.joint, place.footprint * 0.5F), depth = seen * stones_.joint / joint;
    const float inside = std::min({u, v, stones_.length - u, stones_.width - v});
    look.smooth = seen == 0 || inside > joint + place.footprint;
    if (std::min(u, v) < joint) stone = mix(stone, synthesis::materials::kSoil.reflectance * 0.5F, depth);
    look.surface.reflectance = stone;
    const cv::Vec2f slope = bumps(noise_, place.texture, 0.3F, place.footprint);
    look.tilt = cv::Vec3f(slope[0] + 2 * draw(74), 0, slope[1] + 2 * draw(75)) * stones_.relief;
    return look;
}

Look Turf::at(const Place& place) const {
    const float x = place.texture[0], z = place.texture[1], seen = place.footprint;
    constexpr synthesis::Material blades{synthesis::materials::kGrass.reflectance, 0.18F, 0.07F, 0.05F};
    constexpr synthesis::Material grit{synthesis::materials::kGravel.reflectance, 0.16F, 0.05F, 0.05F};
    // Worn paths are bare and stony.
    const float worn = smoothStep(0.2F, 0.35F, noise_.fractal(x, z, 9.0F, seen, 0.55F));
    const float tufts = noise_.fractal(x, z, 0.3F, seen, 0.85F);
    const float pebbles = noise_.fractal(z - 17, x + 29, 0.12F, seen, 0.9F);
    Look look;
    look.surface.reflectance = mix(mottled(blades, noise_, x, z, 1.5F, seen) * std::max(0.3F, 1 + 0.4F * tufts),
                                   mottled(grit, noise_, x, z, 1.0F, seen) * std::max(0.4F, 1 + 0.3F * pebbles), worn);
    // Blades of grass stand upright, so shading is strongest where they are dense.
    look.tilt = cv::Vec3f(tufts, 0, pebbles) * (0.4F - 0.1F * worn);
    look.surface.openness = 0.8F;
    look.smooth = true;
    return look;
}

Spectrum Mountainside::rock(const Place& place) const {
    // Slanted layers with cracks across them.
    const cv::Vec3f& p = place.point;
    const float layers = noise_.fractal(p[0] * 0.15F + p[2] * 0.1F, p[1] + 0.3F * p[0], 30.0F, place.footprint, 0.75F);
    const float ore = noise_.fractal(p[0] * 0.4F, p[1] - 0.3F * p[2], 40.0F, place.footprint, 0.7F);
    return mottled({{0.34F, 0.31F, 0.28F, 0.36F}, 0.16F, 0.08F, 0.08F}, noise_, p[0], p[2] + 0.7F * p[1], 60.0F,
                   place.footprint) *
           std::max(0.2F, 1 + 0.35F * layers) * std::max(0.5F, 1 + 0.12F * ore);
}

Spectrum Mountainside::meadow(const Place& place) const {
    return mottled({{0.15F, 0.19F, 0.08F, 0.46F}, 0.14F, 0.16F, 0.12F}, noise_, place.texture[0], place.texture[1],
                   80.0F, place.footprint);
}

Spectrum Mountainside::woods(const Place& place, cv::Vec3f* tilt) const {
    // Tree crowns of about eight metres, lit from one side, with dark gaps between them.
    const cv::Vec2f slope = bumps(noise_, place.texture, 9.0F, place.footprint);
    *tilt += cv::Vec3f(slope[0], 0, slope[1]) * 0.9F;
    const float gaps = noise_.fractal(place.texture[0], place.texture[1], 10.0F, place.footprint, 0.85F);
    const float kind = smoothStep(-0.2F, 0.3F, noise_.fractal(place.texture[1], place.texture[0], 150.0F, 8.0F));
    const Spectrum tree = synthesis::mix({0.035F, 0.055F, 0.03F, 0.24F}, {0.055F, 0.10F, 0.03F, 0.48F}, kind);
    return tree.scaled(std::max(0.15F, 1 + 0.6F * gaps), std::max(0.25F, 1 + 0.45F * gaps));
}

Look Mountainside::at(const Place& place) const {
    Look look;
    look.smooth = true;
    const float height = -place.point[1], level = std::abs(place.normal[1]);
    const float ragged = noise_.fractal(place.texture[0], place.texture[1], 250.0F, place.footprint, 0.65F);
    const cv::Vec2f slope = bumps(noise_, place.texture, 25.0F, place.footprint);
    look.tilt = cv::Vec3f(slope[0], 0, slope[1]) * 0.35F;
    const float stony = smoothStep(0.86F, 0.78F, level + 0.07F * ragged);
    const float wooded =
        smoothStep(-0.1F, 0.15F, ragged + 0.7F * std::min(1.0F, (treeLine_ - height) / treeLine_) - 0.55F);
    const float snowy = smoothStep(-60, 60, height - snowLine_ + 220 * ragged) * smoothStep(0.62F, 0.72F, level);
    cv::Vec3f crowns(0, 0, 0);
    Spectrum ground = meadow(place);
    if (wooded > 0) ground = mix(ground, woods(place, &crowns), wooded);
    look.tilt += crowns * (wooded * (1 - stony));
    if (stony > 0) ground = mix(ground, rock(place), stony);
    if (snowy > 0) ground = mix(ground, {0.80F, 0.82F, 0.85F, 0.62F}, snowy);
    if (snowy > 0) look.tilt *= 1 - 0.75F * snowy;
    look.surface.reflectance = ground;
    return look;
}

}  // namespace fieldcal::world
