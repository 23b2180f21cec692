#pragma once

#include "simulator/world/Mesh.h"

namespace fieldcal::world {

/// What moves in the wind, over and over again in the same way.
struct Sway {
    static constexpr float periodSeconds = 6;
    static constexpr int steps = 12;  ///< between which everything moves along straight lines

    Mesh mesh;
    std::vector<float> give;  ///< for each vertex: about how many metres it goes to either side

    /// Everything added since there were `first` vertices stands on `foot` and gives `tip` metres at `height` above it.
    void plant(std::size_t first, const cv::Vec3f& foot, float height, float tip);

    /// Where a vertex is at one of the steps; step 0 and the last are the same.
    cv::Vec3f positionAt(std::size_t vertex, int step) const;
};

/// Share of the period that has passed, 0 … 1.
inline float swayPhase(float seconds) {
    const float turns = seconds / Sway::periodSeconds;
    return turns - std::floor(turns);
}

}  // namespace fieldcal::world
