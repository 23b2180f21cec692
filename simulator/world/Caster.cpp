#include "simulator/world/Caster.h"

#include <algorithm>
#include <embree3/rtcore.h>

namespace fieldcal::world {

namespace {

struct alignas(32) Lanes {
    int valid[Rays::most];  // as the library asks: all bits set for a ray in use
    explicit Lanes(const Rays& rays) {
        for (int i = 0; i < Rays::most; ++i)
            valid[i] = i < rays.count ? -1 : 0;
    }
};

void fill(const Rays& rays, RTCRay8* out) {
    for (int i = 0; i < rays.count; ++i) {
        out->org_x[i] = rays.origin[i][0], out->org_y[i] = rays.origin[i][1], out->org_z[i] = rays.origin[i][2];
        out->dir_x[i] = rays.direction[i][0], out->dir_y[i] = rays.direction[i][1];
        out->dir_z[i] = rays.direction[i][2];
        out->tnear[i] = 0, out->tfar[i] = rays.length[i], out->time[i] = rays.phase;
        out->mask[i] = ~0U, out->id[i] = 0, out->flags[i] = 0;
    }
}

}  // namespace

struct Caster::Library {
    RTCDevice device = nullptr;
    RTCScene scene = nullptr;

    explicit Library(const Mesh& mesh) {
        // One thread builds the tree: it then comes out the same every time.
        device = rtcNewDevice("threads=1");
        if (device == nullptr) return;
        scene = rtcNewScene(device);
        rtcSetSceneFlags(scene, RTC_SCENE_FLAG_ROBUST);
        if (!mesh.triangles.empty()) attach(mesh);
        rtcCommitScene(scene);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() {
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

Caster::Caster(const Mesh& mesh) : library_(std::make_unique<Library>(mesh)) {}

Caster::~Caster() = default;

bool Caster::isValid() const {
    return library_->scene != nullptr;
}

void Caster::cast(const Rays& rays, Hit* hits) const {
    std::fill_n(hits, rays.count, Hit{});
    if (!isValid() || rays.count == 0) return;
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    context.flags = RTC_INTERSECT_CONTEXT_FLAG_COHERENT;
    const Lanes lanes(rays);
    RTCRayHit8 seen{};
    fill(rays, &seen.ray);
    std::fill_n(seen.ray.tfar, rays.count, std::numeric_limits<float>::infinity());
    std::fill_n(seen.hit.geomID, Rays::most, RTC_INVALID_GEOMETRY_ID);
    rtcIntersect8(lanes.valid, library_->scene, &context, &seen);
    for (int i = 0; i < rays.count; ++i)
        if (seen.hit.geomID[i] != RTC_INVALID_GEOMETRY_ID)
            hits[i] = {seen.ray.tfar[i], seen.hit.u[i], seen.hit.v[i], seen.hit.primID[i]};
}

unsigned Caster::hidden(const Rays& rays) const {
    if (!isValid() || rays.count == 0) return 0;
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    context.flags = RTC_INTERSECT_CONTEXT_FLAG_COHERENT;
    const Lanes lanes(rays);
    RTCRay8 seen{};
    fill(rays, &seen);
    rtcOccluded8(lanes.valid, library_->scene, &context, &seen);
    unsigned bits = 0;
    for (int i = 0; i < rays.count; ++i)
        if (seen.tfar[i] < 0) bits |= 1U << i;
    return bits;
}

}  // namespace fieldcal::world
