#include "simulator/synthesis/FacadeStyle.h"

#include <array>
#include <cmath>

namespace fieldcal::synthesis {

FacadeStyle drawFacadeStyle(Random& random) {
    static const std::array<Material, 7> walls{
        materials::kPlasterCream, materials::kPlasterRose, materials::kPlasterWhite, materials::kPlasterBlue,
        materials::kBrick,        materials::kStone,       materials::kConcrete};
    static const std::array<Material, 5> shutters{materials::kGreenPaint, materials::kBluePaint, materials::kRedPaint,
                                                  materials::kWood, materials::kWhitePaint};
    FacadeStyle style;
    const int wall = random.index(7);
    style.wall = walls[wall];
    style.masonry = wall == 4 ? Masonry::brick : wall == 5 ? Masonry::blocks : Masonry::plaster;
    style.trim = random.chance(0.5) ? materials::kStone : materials::kWhitePaint;
    style.shutter = shutters[random.index(5)];
    style.storey = random.between(2.9F, 3.9F);
    style.bay = random.between(1.9F, 3.3F);
    style.windowWidth = style.bay * random.between(0.38F, 0.58F);
    style.windowHeight = style.storey * random.between(0.42F, 0.6F);
    style.sill = style.storey * random.between(0.22F, 0.3F);
    style.surround = random.chance(0.7) ? random.between(0.1F, 0.24F) : 0;
    style.recess = random.between(0.1F, 0.35F);
    style.shutters = random.chance(0.4);
    style.shops = random.chance(0.4);
    style.rusticated = random.chance(0.5);
    style.balconies = random.chance(0.4) ? random.between(0.1F, 0.7F) : 0;
    style.seed = static_cast<std::uint32_t>(random.bits());
    return style;
}

Surface paneSurface(const FacadeStyle& style, const Noise& noise, int bay, int floor, FrontPlace in) {
    const auto question = [&](std::uint32_t what) {
        return style.variety > 0 ? Noise::cell(bay, floor, style.seed + what) : 0.35F;
    };
    Surface pane;
    pane.openness = 0.5F;
    const float shade = question(21);
    const float blind = question(22) < 0.35F ? question(23) * style.windowHeight : 0;
    if (style.windowHeight - in.h < blind) {
        const float slats = 0.9F + 0.1F * std::sin(in.h * 90) * std::clamp(0.035F / in.footprint - 0.4F, 0.0F, 1.0F);
        const bool pale = question(24) < 0.6F;
        pane.reflectance = (pale ? Spectrum{0.55F, 0.53F, 0.48F, 0.52F} : Spectrum{0.24F, 0.20F, 0.17F, 0.44F}) * slats;
        return pane;
    }
    pane.sunlight *= 0.3F;
    const bool curtain = question(25) < 0.3F && std::abs(in.s) > style.windowWidth * 0.22F;
    const Spectrum room = Spectrum{0.035F, 0.03F, 0.03F, 0.04F} * (0.5F + shade);
    pane.reflectance = curtain ? Spectrum{0.40F, 0.40F, 0.38F, 0.42F} : room;
    // The reflected sky is blue and therefore nearly absent in the near infrared; reflected house fronts appear in
    // both.
    const float cut =
        noise.fractal(in.s * 0.8F + 13 * shade, in.h * 0.5F + question(26) * 40, 1.4F, in.footprint, 0.55F);
    const float skyward = smoothStep(-0.1F, 0.2F, cut + (shade - 0.5F) * 1.5F);
    pane.gloss =
        mix({0.07F, 0.065F, 0.055F, 0.07F}, {0.17F, 0.24F, 0.33F, 0.03F}, skyward) * (0.4F + 0.8F * question(27));
    return pane;
}

Spectrum signReflectance(std::uint32_t seed, float x, float y, float height) {
    static const std::array<Spectrum, 4> grounds{{{0.70F, 0.68F, 0.62F, 0.66F},
                                                  {0.12F, 0.16F, 0.36F, 0.45F},
                                                  {0.42F, 0.08F, 0.07F, 0.52F},
                                                  {0.10F, 0.11F, 0.10F, 0.12F}}};
    const int kind = static_cast<int>(seed % 4U);
    const Spectrum& ground = grounds[kind];
    const float pitch = height * 0.45F, letterHeight = height * 0.55F;
    const int letter = static_cast<int>(std::floor(x / pitch));
    const float u = x / pitch - static_cast<float>(letter), v = (y - height * 0.22F) / letterHeight;
    if (u > 0.82F || v < 0 || v > 1 || Noise::cell(letter, 0, seed + 7) < 0.15F) return ground;
    const int column = static_cast<int>(u / 0.82F * 3), row = static_cast<int>(v * 5);
    const bool stroke = column == 0 || Noise::cell(letter * 4 + column, row, seed + 9) < 0.45F;
    if (!stroke) return ground;
    Spectrum ink = kind == 0 ? Spectrum{0.30F, 0.07F, 0.10F, 0.10F} : Spectrum{0.75F, 0.72F, 0.60F, 0.68F};
    if (seed % 8U < 5U) ink.infrared = ground.infrared;  // a dye
    return ink;
}

}  // namespace fieldcal::synthesis
