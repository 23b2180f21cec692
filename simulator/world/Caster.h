#pragma once

#include "simulator/world/Sway.h"

#include <limits>
#include <memory>

namespace fieldcal::world {

/// Up to eight rays that are traced together. Directions have unit length.
struct Rays {
    static constexpr int kCount = 8;
    int count = 0;
    float seconds = 0;  ///< time in a moving world
    std::array<cv::Vec3f, kCount> origin, direction;
    std::array<float, kCount> length;  ///< metres, used only by `hidden`

    void add(const cv::Vec3f& from, const cv::Vec3f& towards, float metres = std::numeric_limits<float>::infinity()) {
        origin[count] = from, direction[count] = towards, length[count++] = metres;
    }
};

struct Hit {
    float distance = std::numeric_limits<float>::infinity();  ///< metres; infinite when nothing was hit
    float u = 0, v = 0;                                       ///< weights of the triangle's second and third corner
    std::uint32_t triangle = 0;                               ///< index within the static mesh, then within the swaying
                                                              ///< one
};

/// Intersects rays with a mesh, using the ray-casting library. Read-only after construction: any thread.
class Caster {
public:
    Caster(const Mesh& still, const Sway& sway);
    ~Caster();
    Caster(const Caster&) = delete;
    Caster& operator=(const Caster&) = delete;

    /// Returns false when the library could not be started; no ray then hits anything.
    bool isValid() const;
    void cast(const Rays& rays, Hit* hits) const;
    /// Returns one bit for each ray that hits something within its length.
    unsigned hidden(const Rays& rays) const;

private:
    struct Library;
    std::unique_ptr<Library> library_;
};

}  // namespace fieldcal::world
