#include "simulator/world/World.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

using synthesis::Spectrum;

namespace {

constexpr float kStillSpreadRad = 1.0F / 1700;  // radians between the samples of a still

/// Offset of secondary rays from the surface, so that they do not hit it again.
float rayOffset(float distance) {
    return 5e-4F + 2e-5F * distance;
}

}  // namespace

/// The hit of one ray while it is being shaded.
struct World::Shading {
    Hit hit;
    Place place;
    Look look;
    cv::Vec3f normal;  // with the material's relief
    float facing = 0;  // cosine between normal and sun
    bool isSky() const { return std::isinf(hit.distance); }
};

World::World(Mesh mesh, Materials materials, const Daylight& day, std::unique_ptr<synthesis::Noise> noise,
             const Sway& sway)
    : mesh_(std::move(mesh)),
      materials_(std::move(materials)),
      daylight_(day),
      noise_(std::move(noise)),
      sky_(*noise_, day.cloudiness, day.ridgeHeight),
      caster_(mesh_, sway) {
    append(mesh_, sway.mesh);
    daylight_.light.toSun = unit(daylight_.light.toSun);
}

World::~World() = default;

unsigned World::hidden(Rays rays) const {
    for (int i = 0; i < rays.count; ++i) {
        const float margin = 4 * rayOffset(rays.length[i]);
        rays.origin[i] += rays.direction[i] * margin;
        rays.length[i] -= 2 * margin;
    }
    return caster_.hidden(rays);
}

Place World::placeOf(const cv::Vec3f& origin, const cv::Vec3f& direction, const Hit& hit, float spread) const {
    const auto& t = mesh_.triangles[hit.triangle];
    const auto &a = mesh_.vertices[t[0]], &b = mesh_.vertices[t[1]], &c = mesh_.vertices[t[2]];
    const float rest = 1 - hit.u - hit.v;
    Place place;
    place.point = origin + direction * hit.distance;
    place.texture = a.texture * rest + b.texture * hit.u + c.texture * hit.v;
    place.normal = unit(a.normal * rest + b.normal * hit.u + c.normal * hit.v);
    if (place.normal.dot(direction) > 0) place.normal = -place.normal;
    // On a slanted surface, a sample covers more, but only in one direction.
    const float slant = std::clamp(-place.normal.dot(direction), 0.1F, 1.0F);
    place.footprint = hit.distance * spread / std::sqrt(slant);
    return place;
}

unsigned World::sunlit(const Rays& rays, const Shading* shadings) const {
    Rays toSun;
    toSun.seconds = rays.seconds;
    std::array<int, Rays::kCount> owner{};
    for (int i = 0; i < rays.count; ++i) {
        const Shading& s = shadings[i];
        if (s.isSky() || s.look.surface.sunlight <= 0 || (s.facing <= 0 && s.look.through <= 0)) continue;
        const cv::Vec3f side = s.place.normal.dot(daylight_.light.toSun) < 0 ? -s.place.normal : s.place.normal;
        owner[toSun.count] = i;
        toSun.add(s.place.point + side * rayOffset(s.hit.distance), daylight_.light.toSun);
    }
    const unsigned shadowed = caster_.hidden(toSun);
    unsigned lit = 0;
    for (int k = 0; k < toSun.count; ++k)
        if ((shadowed >> k & 1U) == 0) lit |= 1U << owner[k];
    return lit;
}

Spectrum World::shaded(const Shading& s, bool sunny) const {
    const auto& light = daylight_.light;
    synthesis::Surface surface = s.look.surface;
    const float skyward = 0.5F - 0.5F * s.normal[1], behind = std::max(0.0F, -s.facing);
    surface.openness *= 0.35F + 0.65F * skyward;
    if (!sunny) surface.sunlight = 0;
    Spectrum out = synthesis::lit(surface, light, s.facing);
    // Light reflected by the ground, which mainly reaches surfaces that face down or sideways.
    out += surface.reflectance * light.sun * (0.11F * (1 - skyward) * s.look.surface.openness);
    if (behind > 0)
        out +=
            (surface.reflectance * light.sun)
                .scaled(s.look.through * behind * surface.sunlight, s.look.throughInfrared * behind * surface.sunlight);
    return out;
}

void World::addMirrored(const Rays& rays, const Shading* shadings, float spread, Sample* samples) const {
    Rays away;
    away.seconds = rays.seconds;
    std::array<int, Rays::kCount> owner{};
    std::array<float, Rays::kCount> share{};
    for (int i = 0; i < rays.count; ++i) {
        const Shading& s = shadings[i];
        if (s.isSky() || s.look.mirror <= 0) continue;
        const float cosine = std::clamp(-s.normal.dot(rays.direction[i]), 0.0F, 1.0F);
        owner[away.count] = i;
        share[away.count] = s.look.mirror + (1 - s.look.mirror) * std::pow(1 - cosine, 5.0F);
        away.add(s.place.point + s.place.normal * rayOffset(s.hit.distance),
                 unit(rays.direction[i] + s.normal * (2 * cosine)));
    }
    if (away.count == 0) return;
    std::array<Sample, Rays::kCount> mirrored;
    traced(away, spread, false, mirrored.data());
    for (int k = 0; k < away.count; ++k) {
        Sample& sample = samples[owner[k]];
        sample.radiance = mix(sample.radiance, mirrored[k].radiance, share[k]);
        sample.mirror = share[k] > 0.15F;
        sample.smooth = false;
    }
}

void World::traced(const Rays& rays, float spread, bool mirrors, Sample* samples) const {
    std::array<Hit, Rays::kCount> hits;
    std::array<Shading, Rays::kCount> shadings;
    caster_.cast(rays, hits.data());
    for (int i = 0; i < rays.count; ++i) {
        Shading& s = shadings[i];
        s.hit = hits[i];
        if (s.isSky()) continue;
        s.place = placeOf(rays.origin[i], rays.direction[i], s.hit, spread);
        s.look = materials_[mesh_.materials[s.hit.triangle]]->at(s.place);
        s.normal = unit(s.place.normal + s.look.tilt);
        s.facing = s.normal.dot(daylight_.light.toSun);
    }
    const unsigned lit = sunlit(rays, shadings.data());
    for (int i = 0; i < rays.count; ++i) {
        const Shading& s = shadings[i];
        samples[i] = {};
        samples[i].distance = s.hit.distance;
        if (s.isSky()) {
            samples[i].radiance = sky_.radiance(rays.direction[i], spread, daylight_.wind * rays.seconds);
            continue;
        }
        samples[i].material = mesh_.materials[s.hit.triangle];
        samples[i].normal = s.place.normal;
        samples[i].sunlit = (lit >> i & 1U) != 0;
        samples[i].smooth = s.look.smooth;
        samples[i].radiance = shaded(s, samples[i].sunlit);
    }
    if (mirrors) addMirrored(rays, shadings.data(), spread, samples);
    for (int i = 0; i < rays.count; ++i)
        if (!shadings[i].isSky())
            samples[i].radiance =
                synthesis::Backdrop::throughAir(samples[i].radiance, samples[i].distance / daylight_.clarity);
}

void World::trace(const Rays& rays, float spread, Sample* samples) const {
    traced(rays, spread, true, samples);
}

Sample World::trace(const cv::Vec3f& origin, const cv::Vec3f& direction) const {
    Rays rays;
    rays.add(origin, direction);
    Sample sample;
    trace(rays, kStillSpreadRad, &sample);
    return sample;
}

}  // namespace fieldcal::world
