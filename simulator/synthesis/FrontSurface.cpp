#include "simulator/synthesis/FacadeStyle.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

/// Position relative to the window of its bay: s from the centre of the window, h from its sill.
struct Bay {
    int column = 0, floor = 0;
    float s = 0, h = 0;
};

Bay bayOf(const FacadeStyle& style, FrontPlace place, float length) {
    const int count = std::max(1, static_cast<int>(length / style.bay));
    const float margin = (length - static_cast<float>(count) * style.bay) * 0.5F;
    Bay bay;
    bay.column = static_cast<int>(std::floor((place.s - margin) / style.bay));
    if (bay.column < 0 || bay.column >= count) bay.column = -1;
    bay.floor = static_cast<int>(std::floor(place.h / style.storey));
    bay.s = place.s - margin - (static_cast<float>(bay.column) + 0.5F) * style.bay;
    bay.h = place.h - static_cast<float>(bay.floor) * style.storey - style.sill;
    return bay;
}

Spectrum courses(const FacadeStyle& style, const Noise& noise, FrontPlace p, float width, float height,
                 float contrast) {
    const int row = static_cast<int>(std::floor(p.h / height));
    const float s = p.s + (row % 2 != 0 ? width * 0.5F : 0);
    const int column = static_cast<int>(std::floor(s / width));
    const float seen = std::clamp(1.4F - p.footprint / height, 0.0F, 1.0F);
    const auto question = [&](std::uint32_t what) {
        return (Noise::cell(column, row, style.seed + what) - 0.5F) * contrast * seen;
    };
    const float shared = question(1);
    const Spectrum stone = mottled(style.wall, noise, p.s, p.h, 2.0F, p.footprint)
                               .scaled(1 + shared + 0.6F * question(2), 1 + shared + 0.6F * question(3));
    const float u = s - static_cast<float>(column) * width, v = p.h - static_cast<float>(row) * height;
    const bool joint = u < 0.015F || v < 0.015F;
    return joint ? mix(stone, materials::kMortar.reflectance * 0.7F, seen) : stone;
}

Spectrum wallReflectance(const FacadeStyle& style, const Noise& noise, FrontPlace p) {
    Spectrum wall;
    if (style.masonry == Masonry::brick)
        wall = courses(style, noise, p, 0.25F, 0.085F, 0.5F);
    else if (style.masonry == Masonry::blocks)
        wall = courses(style, noise, p, 0.9F, 0.42F, 0.35F);
    else
        wall = mottled(style.wall, noise, p.s, p.h, 3.0F, p.footprint);
    if (style.rusticated && p.h < style.storey && p.h - std::floor(p.h / 0.42F) * 0.42F < 0.05F) wall = wall * 0.45F;
    // Streaks of dirt left by rain, strongest near the ground; dirt absorbs in every band.
    const float streak = noise.fractal(p.s * 3, p.h * 0.35F, 1.5F, p.footprint, 0.7F);
    return wall * (1 - 0.10F * std::max(0.0F, streak) - 0.15F * smoothStep(1.2F, 0.0F, p.h));
}

Surface shutterSurface(const FacadeStyle& style, const Noise& noise, FrontPlace p, float h) {
    Surface surface;
    const float louvre = std::clamp(0.05F / p.footprint - 0.5F, 0.0F, 1.0F) * 0.25F * std::sin(h * 62.8F);
    surface.reflectance = mottled(style.shutter, noise, p.s, p.h, 0.8F, p.footprint) * (1 + louvre);
    return surface;
}

/// Frame, bars and panes, darkened in the shadow of the reveal.
Surface windowSurface(const FacadeStyle& style, const Noise& noise, const FrontSun& sun, const Bay& bay, FrontPlace p) {
    constexpr float frame = 0.07F;
    const float half = style.windowWidth * 0.5F;
    const bool rim = half - std::abs(bay.s) < frame || bay.h < frame || style.windowHeight - bay.h < frame;
    const bool bar = std::abs(bay.s) < 0.04F || std::abs(bay.h - style.windowHeight * 0.68F) < 0.025F;
    Surface surface = paneSurface(style, noise, bay.column, bay.floor, {bay.s, bay.h, p.footprint});
    if (rim || bar) {
        surface = Surface{};
        const bool wooden = style.seed % 3U == 0U;
        surface.reflectance = wooden ? materials::kWood.reflectance : materials::kWhitePaint.reflectance;
    }
    const float below = sun.dropBelow(style.recess), aside = sun.dropAside(style.recess);
    const bool shaded =
        style.windowHeight - bay.h < below || (aside > 0 ? bay.s + half < aside : half - bay.s < -aside);
    if (shaded) surface.sunlight = 0, surface.openness *= 0.6F;
    return surface;
}

bool hasBalcony(const FacadeStyle& style, const Bay& bay) {
    return bay.floor > 0 && bay.column >= 0 && Noise::cell(bay.column, bay.floor, style.seed + 40) < style.balconies;
}

/// A slab with a railing in front of the window; returns false where it covers nothing.
bool balconySurface(const FacadeStyle& style, const FrontSun& sun, const Bay& bay, FrontPlace p, Surface* out) {
    if (!hasBalcony(style, bay) || std::abs(bay.s) > style.bay * 0.46F) return false;
    const float above = bay.h + style.sill * 0.8F;  // measured from the upper side of the slab
    if (above > -0.18F && above < 0) {
        out->reflectance = style.trim.reflectance;
        return true;
    }
    if (above <= -0.18F && above > -0.18F - sun.dropBelow(0.9F)) out->sunlight = 0;
    if (above < 0 || above > 1.0F) return false;
    const bool rail = above > 0.94F || above < 0.08F;
    const float pitch = 0.14F, offset = bay.s - std::round(bay.s / pitch) * pitch;
    const float bars = p.footprint < pitch * 0.5F ? (std::abs(offset) < 0.02F ? 1.0F : 0.0F) : 0.28F;
    const float cover = rail ? 1 : bars;
    out->reflectance = mix(out->reflectance, materials::kMetal.reflectance, cover);
    out->gloss = out->gloss * (1 - cover);
    return cover > 0.9F;
}

Surface shopSurface(const FacadeStyle& style, const Noise& noise, FrontPlace p) {
    const int shop = static_cast<int>(std::floor(p.s / (style.bay * 2)));
    const float s = p.s - static_cast<float>(shop) * style.bay * 2;
    const std::uint32_t seed = style.seed + static_cast<std::uint32_t>(shop) * 17U;
    Surface surface;
    const float signFoot = style.storey - 0.95F;
    if (p.h > signFoot && p.h < signFoot + 0.7F && s > 0.3F && s < style.bay * 2 - 0.3F) {
        surface.reflectance = signReflectance(seed, s - 0.3F, p.h - signFoot, 0.7F);
        return surface;
    }
    if (p.h > 0.5F && p.h < signFoot - 0.1F && s > 0.35F && s < style.bay * 2 - 0.35F) {
        if (std::abs(s - style.bay) < 0.05F) {
            surface.reflectance = materials::kMetal.reflectance;
            return surface;
        }
        surface = paneSurface(style, noise, shop, 99, {s - style.bay, p.h - 0.5F, p.footprint});
        const float goods = noise.fractal(p.s * 1.5F, p.h * 1.5F, 0.7F, p.footprint, 0.75F);
        const float dyes = noise.fractal(p.h * 1.5F + 9, p.s * 1.5F, 0.7F, p.footprint, 0.75F);
        if (p.h < signFoot - 0.9F)
            surface.reflectance = Spectrum{0.22F, 0.20F, 0.18F, 0.22F}.scaled(
                std::max(0.1F, 1 + goods), std::max(0.1F, 1 + 0.5F * goods + 0.6F * dyes));
        return surface;
    }
    surface.reflectance = wallReflectance(style, noise, p);
    return surface;
}

/// Wall and trims, with the shadows of parts that protrude from the wall.
Surface wallSurface(const FacadeStyle& style, const Noise& noise, const FrontSun& sun, const Bay& bay, FrontPlace p) {
    Surface surface;
    const float half = style.windowWidth * 0.5F, beside = std::abs(bay.s) - half;
    const bool level = bay.h > 0 && bay.h < style.windowHeight;
    const bool framed =
        beside < style.surround && bay.h > -style.surround && bay.h < style.windowHeight + style.surround;
    if (bay.column >= 0 && style.shutters && level && beside > style.surround && beside < half + style.surround)
        return shutterSurface(style, noise, p, bay.h);
    const bool sillSlab = bay.column >= 0 && bay.h < 0 && bay.h > -0.12F && beside < 0.15F;
    const float string = bay.h + style.sill;  // measured from the floor of the storey
    const bool course = string < 0.16F && bay.floor > 0;
    if (sillSlab || course || (bay.column >= 0 && framed))
        surface.reflectance = mottled(style.trim, noise, p.s, p.h, 0.7F, p.footprint);
    else
        surface.reflectance = wallReflectance(style, noise, p);
    const float below = bay.h + 0.12F;
    const bool underSill = bay.column >= 0 && !sillSlab && beside < 0.15F && below < 0 && below > -sun.dropBelow(0.12F);
    const float underCourse = style.storey - string;
    if (underSill || (!course && underCourse < sun.dropBelow(0.1F))) surface.sunlight = 0, surface.openness = 0.7F;
    return surface;
}

}  // namespace

Surface frontSurface(const FacadeStyle& style, const Noise& noise, const FrontSun& sun, FrontPlace p, float length,
                     float height) {
    Surface surface;
    if (height - p.h < 0.45F && style.windows) {
        surface.reflectance = mottled(style.trim, noise, p.s, p.h, 0.7F, p.footprint);
        if (height - p.h > 0.3F) surface.sunlight = 0;
        return surface;
    }
    const float pipe = std::abs(p.s - 0.4F);
    if (pipe < 0.06F && style.windows) {
        surface.reflectance = materials::kMetal.reflectance * (pipe < 0.02F ? 2.2F : 1.0F);
        return surface;
    }
    const Bay bay = bayOf(style, p, length);
    if (!style.windows) {
        surface.reflectance = wallReflectance(style, noise, p);
        return surface;
    }
    if (style.shops && bay.floor == 0) return shopSurface(style, noise, p);
    const bool room = height - (static_cast<float>(bay.floor) * style.storey + style.sill) > style.windowHeight + 0.5F;
    const bool inWindow = bay.column >= 0 && room && std::abs(bay.s) < style.windowWidth * 0.5F && bay.h > 0 &&
                          bay.h < style.windowHeight;
    surface = inWindow ? windowSurface(style, noise, sun, bay, p) : wallSurface(style, noise, sun, bay, p);
    balconySurface(style, sun, bay, p, &surface);
    if (height - p.h < 0.45F + sun.dropBelow(0.45F)) surface.sunlight = 0;  // in the shadow of the cornice
    return surface;
}

}  // namespace fieldcal::synthesis
