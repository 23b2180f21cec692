#pragma once

#include "simulator/world/Mesh.h"

namespace fieldcal::world {

/// Periodic motion in the wind.
struct Sway {
    static constexpr float kPeriodSeconds = 6;
    static constexpr int kSteps = 12;  ///< number of steps, between which everything moves along straight lines

    Mesh mesh;
    std::vector<float> give;  ///< for each vertex the approximate amplitude in metres

    /// Sets the motion of all vertices added since there were `first`: they are rooted at `foot` and move by `tip`
    /// metres at `height` above it.
    void plant(std::size_t first, const cv::Vec3f& foot, float height, float tip);

    /// Returns the position of a vertex at one of the steps; step 0 and the last one are the same.
    cv::Vec3f positionAt(std::size_t vertex, int step) const;
};

/// Returns the elapsed share of the period, 0 … 1.
inline float swayPhase(float seconds) {
    const float turns = seconds / Sway::kPeriodSeconds;
    return turns - std::floor(turns);
}

}  // namespace fieldcal::world
