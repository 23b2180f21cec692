#include "simulator/synthesis/Scene.h"

#include "simulator/synthesis/Panorama.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr float texel = static_cast<float>(1.0 / Panorama::texelsPerRadian);
constexpr double pi = 3.141592653589793;

float wrapped(float angle) {
    return std::remainder(angle, static_cast<float>(2 * pi));
}

}  // namespace

Scene::Scene(std::uint64_t seed, const Light& light, float eyeHeight, Paving paving, float cloudiness,
             float ridgeHeight)
    : noise_(seed),
      light_(light),
      ground_(noise_, eyeHeight, paving),
      backdrop_(noise_, cloudiness, ridgeHeight),
      occluders_(light.toSun) {}

void Scene::add(const UprightRectangle& place, const FacadeStyle& style) {
    fronts_.emplace_back(place, style, noise_, light_);
    occluders_.add(place);
}

void Scene::addRoof(const UprightRectangle& front, float rise, bool tiled) {
    roofs_.emplace_back(front, rise, tiled, noise_, light_);
    roofFronts_.push_back(front);
}

void Scene::addCrown(float x, float z, float heightAboveGround, float radius) {
    occluders_.add(Crown{{x, eyeHeight() - heightAboveGround, z}, radius});
}

void Scene::finish() {
    std::sort(standing_.begin(), standing_.end(),
              [](const Standing& a, const Standing& b) { return a.distance < b.distance; });
    ground_.castShadows(occluders_);
    for (auto& front : fronts_)
        front.castShadows(occluders_);
    sortIntoSectors();
}

void Scene::fileArc(double from, double to, std::vector<int> Sector::*list, int index) {
    const double width = 2 * pi / sectors;
    const int first = static_cast<int>(std::floor(from / width)), last = static_cast<int>(std::floor(to / width));
    for (int i = first; i <= last && i < first + sectors; ++i)
        (sectors_[((i % sectors) + sectors) % sectors].*list).push_back(index);
}

void Scene::fileRectangle(const UprightRectangle& place, float margin, std::vector<int> Sector::*list, int index) {
    const cv::Vec2f a = place.origin - place.along * margin, b = place.origin + place.along * (place.length + margin);
    const double from = std::atan2(a[0], a[1]);
    const double turn = std::remainder(std::atan2(b[0], b[1]) - from, 2 * pi);
    fileArc(std::min(from, from + turn), std::max(from, from + turn), list, index);
}

void Scene::sortIntoSectors() {
    for (std::size_t i = 0; i < fronts_.size(); ++i)
        fileRectangle(fronts_[i].place(), 0, &Sector::fronts, static_cast<int>(i));
    // A roof may lean over the ends of its front by as much as the ridge lies behind the eave.
    for (std::size_t i = 0; i < roofFronts_.size(); ++i)
        fileRectangle(roofFronts_[i], 6, &Sector::roofs, static_cast<int>(i));
    for (std::size_t i = 0; i < standing_.size(); ++i) {
        const double half = std::atan(standing_[i].sprite.halfWidth() / standing_[i].distance);
        fileArc(standing_[i].azimuth - half, standing_[i].azimuth + half, &Sector::standing, static_cast<int>(i));
    }
}

Spectrum Scene::opaque(const cv::Vec3f& d, const Sector& sector, float* distance) const {
    float nearest = 1e9F;
    const Front* front = nullptr;
    const Roof* roof = nullptr;
    for (int i : sector.fronts) {
        const float t = fronts_[i].hit(d);
        if (t > 0 && t < nearest) nearest = t, front = &fronts_[i];
    }
    for (int i : sector.roofs) {
        const float t = roofs_[i].hit(d);
        if (t > 0 && t < nearest) nearest = t, front = nullptr, roof = &roofs_[i];
    }
    const float ground = d[1] > 1e-3F ? eyeHeight() / d[1] : 1e9F;
    *distance = std::min(nearest, ground);
    if (ground < nearest && ground < 900) {
        const float footprint = ground * texel / std::sqrt(std::max(0.02F, d[1]));
        return Backdrop::throughAir(ground_.radiance(d[0] * ground, d[2] * ground, footprint, light_), ground);
    }
    if (front != nullptr) return front->radiance(d * nearest, nearest * texel);
    if (roof != nullptr) return roof->radiance(d * nearest, nearest * texel * 1.3F);
    return backdrop_.radiance(d, texel);
}

Spectrum Scene::radiance(const cv::Vec3f& d) const {
    const float azimuth = std::atan2(d[0], d[2]);
    const float turn = azimuth < 0 ? azimuth + static_cast<float>(2 * pi) : azimuth;
    const auto& sector =
        sectors_[std::min(sectors - 1, static_cast<int>(turn * static_cast<float>(sectors / (2 * pi))))];
    float distance = 0;
    const Spectrum behind = opaque(d, sector, &distance);
    const float level = std::sqrt(d[0] * d[0] + d[2] * d[2]);
    Spectrum sum;
    float clear = 1;
    for (int i : sector.standing) {
        const Standing& thing = standing_[i];
        const float aside = wrapped(azimuth - thing.azimuth), away = thing.distance / std::cos(aside);
        if (away > distance * level || clear < 0.01F) break;
        Spectrum light;
        const float cover =
            thing.sprite.at(thing.distance * std::tan(aside), eyeHeight() - d[1] / level * away, &light);
        if (cover <= 0) continue;
        sum += light * clear;
        clear *= 1 - cover;
    }
    return sum + behind * clear;
}

}  // namespace fieldcal::synthesis
