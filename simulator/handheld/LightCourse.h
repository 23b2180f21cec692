#pragma once

#include <string>
#include <vector>

namespace fieldcal::handheld {

/// How much light there is as time goes on, 1 in the sun.
class LightCourse {
public:
    /// `sun`, `shade`, `indoors`; `walk-out`: some seconds indoors, then out into the sun; `clouds`: sun and deep
    /// shade in turn. False for another name.
    static bool find(const std::string& name, LightCourse* out);
    /// All names, in the order in which they are listed to people.
    static std::vector<std::string> names();

    double at(double seconds) const;

private:
    struct Level {
        double seconds, light;
    };
    std::vector<Level> levels_;  ///< linear in between, the last one holds on
    bool repeats_ = false;       ///< from the start again after the last one
};

}  // namespace fieldcal::handheld
