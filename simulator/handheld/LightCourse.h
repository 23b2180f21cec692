#pragma once

#include <string>
#include <vector>

namespace fieldcal::handheld {

/// The amount of light over time, 1 in the sun.
class LightCourse {
public:
    /// `sun`, `shade`, `indoors`; `walk-out`: some seconds indoors, then in the sun; `clouds`: alternately sun and deep
    /// shade. Returns false for any other name.
    static bool find(const std::string& name, LightCourse* out);
    /// Returns all names in the order in which they are listed to users.
    static std::vector<std::string> names();

    double at(double seconds) const;

private:
    struct Level {
        double seconds, light;
    };
    std::vector<Level> levels_;  ///< linearly interpolated; the last one stays
    bool repeats_ = false;       ///< starts again after the last level
};

}  // namespace fieldcal::handheld
