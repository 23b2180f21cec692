#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Sky.h"
#include "simulator/world/Material.h"
#include "simulator/world/Mesh.h"

#include <cstdint>
#include <memory>

namespace fieldcal::world {

struct Sample {
    synthesis::Spectrum radiance;  ///< sunlit white is about 1
    float distance;                ///< metres; infinite for the sky
};

/// Sun, sky and air.
struct Daylight {
    synthesis::Light light;
    float cloudiness = 0.4F;   ///< 0 clear … 1
    float clarity = 2;         ///< how many times further one sees than through summer haze
    float ridgeHeight = 0.0F;  ///< painted ridges at infinity, radians; 0 for none
};

/// Surfaces under a sky. Built once, then only read: any thread, and the same ray always gives the same answer.
class World {
public:
    /// Takes a second for a million triangles. `noise` outlives the world and the materials that refer to it.
    World(Mesh mesh, Materials materials, const Daylight& day, std::unique_ptr<synthesis::Noise> noise);
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// False when the ray-casting library could not be started; every ray then sees the sky.
    bool isValid() const;

    /// `direction` has unit length.
    Sample trace(const cv::Vec3f& origin, const cv::Vec3f& direction) const;
    /// Metres to the first surface, infinite for the sky.
    float distance(const cv::Vec3f& origin, const cv::Vec3f& direction) const;
    /// True when something stands between two points (not counting the last millimetres before either).
    bool isHidden(const cv::Vec3f& from, const cv::Vec3f& to) const;

    const synthesis::Light& light() const { return daylight_.light; }

private:
    struct Caster;
    struct Hit;
    bool cast(const cv::Vec3f& origin, const cv::Vec3f& direction, Hit* hit) const;
    bool inShadow(const cv::Vec3f& point, const cv::Vec3f& side, float distance) const;
    Sample traced(const cv::Vec3f& origin, const cv::Vec3f& direction, bool mirrors) const;
    synthesis::Spectrum shaded(const Look& look, const Place& place, float distance) const;
    Place placeOf(const cv::Vec3f& origin, const cv::Vec3f& direction, const Hit& hit) const;

    Mesh mesh_;
    Materials materials_;
    Daylight daylight_;
    std::unique_ptr<synthesis::Noise> noise_;
    synthesis::Backdrop sky_;
    std::unique_ptr<Caster> caster_;
};

}  // namespace fieldcal::world
