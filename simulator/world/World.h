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
    cv::Vec3f normal{0, 0, 0};     ///< of the surface, towards the eye
    int material = -1;             ///< −1 for the sky
    bool sunlit = false;
    bool smooth = true;  ///< the material shows nothing finer than the sample covers
    bool mirror = false;
};

/// Sun, sky and air.
struct Daylight {
    synthesis::Light light;
    float cloudiness = 0.4F;   ///< 0 clear … 1
    float clarity = 2;         ///< how many times further one sees than through summer haze
    float ridgeHeight = 0.0F;  ///< painted ridges at infinity, radians; 0 for none
    cv::Vec2f wind{0, 0};      ///< how far clouds move in a second, in heights of theirs above the ground
};

/// Surfaces under a sky. Built once, then only read: any thread, and the same ray always gives the same answer.
class World {
public:
    /// Takes a second for a million triangles. `noise` outlives the world and the materials that refer to it.
    World(Mesh mesh, Materials materials, const Daylight& day, std::unique_ptr<synthesis::Noise> noise,
          const Sway& sway = {});
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// False when the ray-casting library could not be started; every ray then sees the sky.
    bool isValid() const { return caster_.isValid(); }

    /// What each ray sees. `spread`: radians between neighbouring samples, so that nothing finer is shown.
    void trace(const Rays& rays, float spread, Sample* samples) const;
    /// The same for one ray of a still. `direction` has unit length.
    Sample trace(const cv::Vec3f& origin, const cv::Vec3f& direction) const;
    /// One bit for each ray on whose way something stands (not counting the last millimetres before either end).
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
