#include "simulator/world/Caster.h"

#include <algorithm>
#include <embree3/rtcore.h>
#include <mutex>

namespace fieldcal::world {

namespace {

constexpr unsigned kSwayingGeometry = 1;  // the geometry of moving objects

struct alignas(32) Lanes {
    int valid[Rays::kCount];  // format of the library: all bits are set for a ray in use
    explicit Lanes(const Rays& rays) {
        for (int i = 0; i < Rays::kCount; ++i)
            valid[i] = i < rays.count ? -1 : 0;
    }
};

void fill(const Rays& rays, RTCRay8* out) {
    const float phase = swayPhase(rays.seconds);
    for (int i = 0; i < rays.count; ++i) {
        out->org_x[i] = rays.origin[i][0], out->org_y[i] = rays.origin[i][1], out->org_z[i] = rays.origin[i][2];
        out->dir_x[i] = rays.direction[i][0], out->dir_y[i] = rays.direction[i][1];
        out->dir_z[i] = rays.direction[i][2];
        out->tnear[i] = 0, out->tfar[i] = rays.length[i], out->time[i] = phase;
        out->mask[i] = ~0U, out->id[i] = 0, out->flags[i] = 0;
    }
}

}  // namespace

struct Caster::Library {
    RTCDevice device = nullptr;
    RTCScene scene = nullptr;

    std::uint32_t stillTriangles;

    Library(const Mesh& still, const Sway& sway) : stillTriangles(static_cast<std::uint32_t>(still.triangles.size())) {
        const std::lock_guard<std::mutex> lock(startAndEnd());
        // The tree is built by one thread, so that it is the same every time.
        device = rtcNewDevice("threads=1");
        if (device == nullptr) return;
        scene = rtcNewScene(device);
        rtcSetSceneFlags(scene, RTC_SCENE_FLAG_ROBUST);
        if (!still.triangles.empty())
            attach(still, 0, 1, [&](std::size_t vertex, int) { return still.vertices[vertex].position; });
        if (!sway.mesh.triangles.empty())
            attach(sway.mesh, kSwayingGeometry, Sway::kSteps + 1,
                   [&](std::size_t vertex, int step) { return sway.positionAt(vertex, step); });
        rtcCommitScene(scene);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() {
        const std::lock_guard<std::mutex> lock(startAndEnd());
        if (scene != nullptr) rtcReleaseScene(scene);
        if (device != nullptr) rtcReleaseDevice(device);
    }

private:
    /// Devices share state of the library, which does not guarantee that two may be started at once.
    static std::mutex& startAndEnd() {
        static std::mutex mutex;
        return mutex;
    }
    template <typename Position>
    void attach(const Mesh& mesh, unsigned id, int steps, const Position& positionAt) {
        RTCGeometry geometry = rtcNewGeometry(device, RTC_GEOMETRY_TYPE_TRIANGLE);
        rtcSetGeometryTimeStepCount(geometry, static_cast<unsigned>(steps));
        bool complete = true;
        for (int step = 0; step < steps; ++step) {
            auto* position = static_cast<float*>(rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX,
                                                                         static_cast<unsigned>(step), RTC_FORMAT_FLOAT3,
                                                                         3 * sizeof(float), mesh.vertices.size()));
            complete = complete && position != nullptr;
            for (std::size_t i = 0; complete && i < mesh.vertices.size(); ++i)
                position = std::copy_n(positionAt(i, step).val, 3, position);
        }
        auto* corner = static_cast<std::uint32_t*>(rtcSetNewGeometryBuffer(
            geometry, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3, 3 * sizeof(std::uint32_t), mesh.triangles.size()));
        if (complete && corner != nullptr) {
            for (const auto& t : mesh.triangles)
                corner = std::copy(t.begin(), t.end(), corner);
            rtcCommitGeometry(geometry);
            rtcAttachGeometryByID(scene, geometry, id);
        }
        rtcReleaseGeometry(geometry);
    }
};

Caster::Caster(const Mesh& still, const Sway& sway) : library_(std::make_unique<Library>(still, sway)) {}

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
    std::fill_n(seen.hit.geomID, Rays::kCount, RTC_INVALID_GEOMETRY_ID);
    rtcIntersect8(lanes.valid, library_->scene, &context, &seen);
    for (int i = 0; i < rays.count; ++i)
        if (seen.hit.geomID[i] != RTC_INVALID_GEOMETRY_ID) {
            const std::uint32_t before = seen.hit.geomID[i] == kSwayingGeometry ? library_->stillTriangles : 0;
            hits[i] = {seen.ray.tfar[i], seen.hit.u[i], seen.hit.v[i], before + seen.hit.primID[i]};
        }
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
