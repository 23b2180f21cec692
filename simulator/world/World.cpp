#include "simulator/world/World.h"

#include <algorithm>
#include <cmath>
#include <embree3/rtcore.h>
#include <limits>

namespace fieldcal::world {

using synthesis::Spectrum;

namespace {

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float sampleSpread = 1.0F / 1700;  // radians between the samples of a still

/// How far off a surface secondary rays start, so that they do not hit it again.
float liftOff(float distance) {
    return 5e-4F + 2e-5F * distance;
}

RTCRay rayFrom(const cv::Vec3f& origin, const cv::Vec3f& direction, float length) {
    RTCRay ray{};
    ray.org_x = origin[0], ray.org_y = origin[1], ray.org_z = origin[2];
    ray.dir_x = direction[0], ray.dir_y = direction[1], ray.dir_z = direction[2];
    ray.tfar = length;
    ray.mask = ~0U;
    return ray;
}

}  // namespace

/// What the ray-casting library holds of the mesh.
struct World::Caster {
    RTCDevice device = nullptr;
    RTCScene scene = nullptr;

    explicit Caster(const Mesh& mesh) {
        // One thread builds the tree: it then comes out the same every time.
        device = rtcNewDevice("threads=1");
        if (device == nullptr) return;
        scene = rtcNewScene(device);
        rtcSetSceneFlags(scene, RTC_SCENE_FLAG_ROBUST);
        if (!mesh.triangles.empty()) attach(mesh);
        rtcCommitScene(scene);
    }
    Caster(const Caster&) = delete;
    Caster& operator=(const Caster&) = delete;
    ~Caster() {
        if (scene != nullptr) rtcReleaseScene(scene);
        if (device != nullptr) rtcReleaseDevice(device);
    }

private:
    void attach(const Mesh& mesh) {
        RTCGeometry geometry = rtcNewGeometry(device, RTC_GEOMETRY_TYPE_TRIANGLE);
        auto* position = static_cast<float*>(rtcSetNewGeometryBuffer(
            geometry, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3, 3 * sizeof(float), mesh.vertices.size()));
        auto* corner = static_cast<std::uint32_t*>(rtcSetNewGeometryBuffer(
            geometry, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3, 3 * sizeof(std::uint32_t), mesh.triangles.size()));
        if (position != nullptr && corner != nullptr) {
            for (const auto& v : mesh.vertices)
                position = std::copy_n(v.position.val, 3, position);
            for (const auto& t : mesh.triangles)
                corner = std::copy(t.begin(), t.end(), corner);
            rtcCommitGeometry(geometry);
            rtcAttachGeometry(scene, geometry);
        }
        rtcReleaseGeometry(geometry);
    }
};

struct World::Hit {
    float distance = infinite;
    float u = 0, v = 0;
    cv::Vec3f facet;  // normal of the triangle, any side and length
    std::uint32_t triangle = 0;
};

World::World(Mesh mesh, Materials materials, const Daylight& day, std::unique_ptr<synthesis::Noise> noise)
    : mesh_(std::move(mesh)),
      materials_(std::move(materials)),
      daylight_(day),
      noise_(std::move(noise)),
      sky_(*noise_, day.cloudiness, day.ridgeHeight),
      caster_(std::make_unique<Caster>(mesh_)) {
    daylight_.light.toSun = unit(daylight_.light.toSun);
}

World::~World() = default;

bool World::isValid() const {
    return caster_->scene != nullptr;
}

bool World::cast(const cv::Vec3f& origin, const cv::Vec3f& direction, Hit* hit) const {
    if (!isValid()) return false;
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRayHit ray{};
    ray.ray = rayFrom(origin, direction, infinite);
    ray.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    rtcIntersect1(caster_->scene, &context, &ray);
    if (ray.hit.geomID == RTC_INVALID_GEOMETRY_ID) return false;
    *hit = {ray.ray.tfar, ray.hit.u, ray.hit.v, {ray.hit.Ng_x, ray.hit.Ng_y, ray.hit.Ng_z}, ray.hit.primID};
    return true;
}

bool World::isHidden(const cv::Vec3f& from, const cv::Vec3f& to) const {
    if (!isValid()) return false;
    const cv::Vec3f way = to - from;
    const auto length = static_cast<float>(cv::norm(way));
    const float margin = 4 * liftOff(length);
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRay ray = rayFrom(from, way * (1 / length), length - margin);
    ray.tnear = margin;
    rtcOccluded1(caster_->scene, &context, &ray);
    return ray.tfar < 0;
}

bool World::inShadow(const cv::Vec3f& point, const cv::Vec3f& side, float distance) const {
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRay ray = rayFrom(point + side * liftOff(distance), daylight_.light.toSun, infinite);
    rtcOccluded1(caster_->scene, &context, &ray);
    return ray.tfar < 0;
}

Place World::placeOf(const cv::Vec3f& origin, const cv::Vec3f& direction, const Hit& hit) const {
    const auto& t = mesh_.triangles[hit.triangle];
    const auto &a = mesh_.vertices[t[0]], &b = mesh_.vertices[t[1]], &c = mesh_.vertices[t[2]];
    const float rest = 1 - hit.u - hit.v;
    Place place;
    place.point = origin + direction * hit.distance;
    place.texture = a.texture * rest + b.texture * hit.u + c.texture * hit.v;
    place.normal = unit(a.normal * rest + b.normal * hit.u + c.normal * hit.v);
    if (place.normal.dot(direction) > 0) place.normal = -place.normal;
    // A slanted surface is covered more by one sample, but not in both directions.
    const float slant = std::clamp(-place.normal.dot(direction), 0.1F, 1.0F);
    place.footprint = hit.distance * sampleSpread / std::sqrt(slant);
    return place;
}

Spectrum World::shaded(const Look& look, const Place& place, float distance) const {
    const auto& light = daylight_.light;
    const cv::Vec3f normal = unit(place.normal + look.tilt);
    const float facing = normal.dot(light.toSun), behind = std::max(0.0F, -facing);
    synthesis::Surface surface = look.surface;
    const float skyward = 0.5F - 0.5F * normal[1];
    surface.openness *= 0.35F + 0.65F * skyward;
    const bool sunny = (facing > 0 || look.through > 0) && surface.sunlight > 0;
    const cv::Vec3f side = place.normal.dot(light.toSun) < 0 ? -place.normal : place.normal;
    if (!sunny || inShadow(place.point, side, distance)) surface.sunlight = 0;
    Spectrum out = synthesis::lit(surface, light, facing);
    // Light that the ground throws back, most on what looks down or sideways.
    out += surface.reflectance * light.sun * (0.11F * (1 - skyward) * look.surface.openness);
    if (behind > 0)
        out += (surface.reflectance * light.sun)
                   .scaled(look.through * behind * surface.sunlight, look.throughInfrared * behind * surface.sunlight);
    return out;
}

Sample World::traced(const cv::Vec3f& origin, const cv::Vec3f& direction, bool mirrors) const {
    Hit hit;
    if (!cast(origin, direction, &hit)) return {sky_.radiance(direction, sampleSpread), infinite};
    const Place place = placeOf(origin, direction, hit);
    const Look look = materials_[mesh_.materials[hit.triangle]]->at(place);
    Spectrum light = shaded(look, place, hit.distance);
    if (look.mirror > 0 && mirrors) {
        const cv::Vec3f normal = unit(place.normal + look.tilt);
        const float cosine = std::clamp(-normal.dot(direction), 0.0F, 1.0F);
        const float share = look.mirror + (1 - look.mirror) * std::pow(1 - cosine, 5.0F);
        const cv::Vec3f away = direction + normal * (2 * cosine);
        light =
            mix(light, traced(place.point + place.normal * liftOff(hit.distance), unit(away), false).radiance, share);
    }
    return {synthesis::Backdrop::throughAir(light, hit.distance / daylight_.clarity), hit.distance};
}

Sample World::trace(const cv::Vec3f& origin, const cv::Vec3f& direction) const {
    return traced(origin, direction, true);
}

float World::distance(const cv::Vec3f& origin, const cv::Vec3f& direction) const {
    Hit hit;
    cast(origin, direction, &hit);
    return hit.distance;
}

}  // namespace fieldcal::world
