#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Noise.h"

#include <memory>
#include <vector>

namespace fieldcal::world {

/// The point on a surface that a ray has hit.
struct Place {
    cv::Vec3f point;    ///< metres, in the world
    cv::Vec3f normal;   ///< towards the ray's origin
    cv::Vec2f texture;  ///< texture coordinates of the mesh
    float footprint;    ///< size of one sample, metres
};

/// The appearance of a material at a point, without illumination.
struct Look {
    synthesis::Surface surface;
    cv::Vec3f tilt{0, 0, 0};    ///< added to the normal: relief too fine for triangles
    float mirror = 0;           ///< reflected share of the light at normal incidence, as by glass
    float through = 0;          ///< transmitted share of the light from behind, as in a leaf
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
