#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Noise.h"

#include <memory>
#include <vector>

namespace fieldcal::world {

/// A place on a surface where a ray has hit.
struct Place {
    cv::Vec3f point;    ///< metres, in the world
    cv::Vec3f normal;   ///< towards the ray's origin
    cv::Vec2f texture;  ///< as the mesh has it
    float footprint;    ///< metres across that one sample covers
};

/// What a material shows at a place, before light falls on it.
struct Look {
    synthesis::Surface surface;
    cv::Vec3f tilt{0, 0, 0};    ///< added to the normal: relief too fine for triangles
    float mirror = 0;           ///< share of the light mirrored when looked at squarely, as by glass or polish
    float through = 0;          ///< share of the light from behind that passes, as in a leaf
    float throughInfrared = 0;  ///< the same in the near infrared
    bool smooth = false;        ///< shows nothing finer than the footprint
};

/// Reflectance in red, green, blue and near infrared, procedural. Any thread.
class Material {
public:
    virtual ~Material() = default;
    virtual Look at(const Place& place) const = 0;
};

using Materials = std::vector<std::unique_ptr<Material>>;

}  // namespace fieldcal::world
