#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Sky.h"
#include "simulator/world/Caster.h"
#include "simulator/world/Material.h"
#include "simulator/world/Mesh.h"

#include <cstdint>
#include <memory>

namespace fieldcal::world {

struct Sample {
    synthesis::Spectrum radiance;  ///< sunlit white is about 1
    float distance = 0;            ///< metres; infinite for the sky
    cv::Vec3f normal{0, 0, 0};     ///< of the surface, towards the viewer
    int material = -1;             ///< −1 for the sky
    bool sunlit = false;
    bool smooth = true;  ///< the material shows nothing finer than the sample covers
    bool mirror = false;
};

/// Sun, sky and air.
struct Daylight {
    synthesis::Light light;
    float cloudiness = 0.4F;   ///< 0 clear … 1 overcast
    float clarity = 2;         ///< visibility relative to that in summer haze
    float ridgeHeight = 0.0F;  ///< backdrop ridges at infinity, radians; 0 for none
    cv::Vec2f wind{0, 0};      ///< motion of the clouds per second, in multiples of their height above the ground
};

/// Surfaces under a sky. Read-only after construction: any thread, and the same ray always gives the same result.
class World {
public:
    /// Takes about a second for a million triangles. `noise` must outlive the world and the materials that refer to it.
    World(Mesh mesh, Materials materials, const Daylight& day, std::unique_ptr<synthesis::Noise> noise,
          const Sway& sway = {});
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// Returns false when the ray-casting library could not be started; every ray then sees the sky.
    bool isValid() const { return caster_.isValid(); }

    /// Traces each ray. `spread`: radians between neighbouring samples; finer details are filtered out.
    void trace(const Rays& rays, float spread, Sample* samples) const;
    /// Traces one ray of a still. `direction` has unit length.
    Sample trace(const cv::Vec3f& origin, const cv::Vec3f& direction) const;
    /// Returns one bit for each ray that is blocked, ignoring the last millimetres before either end.
    unsigned hidden(Rays rays) const;

    const synthesis::Light& light() const { return daylight_.light; }

private:
    struct Shading;
    void traced(const Rays& rays, float spread, bool mirrors, Sample* samples) const;
    Place placeOf(const cv::Vec3f& origin, const cv::Vec3f& direction, const Hit& hit, float spread) const;
    unsigned sunlit(const Rays& rays, const Shading* shadings) const;
    synthesis::Spectrum shaded(const Shading& shading, bool sunny) const;
    void addMirrored(const Rays& rays, const Shading* shadings, float spread, Sample* samples) const;

    Mesh mesh_;
    Materials materials_;
    Daylight daylight_;
    std::unique_ptr<synthesis::Noise> noise_;
    synthesis::Backdrop sky_;
    Caster caster_;
};

}  // namespace fieldcal::world
