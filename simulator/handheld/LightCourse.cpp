#include "simulator/handheld/LightCourse.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::handheld {

namespace {

constexpr double kSunLight = 1, kShadeLight = 0.2, kIndoorLight = 0.05;

}

bool LightCourse::find(const std::string& name, LightCourse* out) {
    LightCourse course;
    if (name == "sun") course.levels_ = {{0, kSunLight}};
    if (name == "shade") course.levels_ = {{0, kShadeLight}};
    if (name == "indoors") course.levels_ = {{0, kIndoorLight}};
    if (name == "walk-out") course.levels_ = {{0, kIndoorLight}, {5, kIndoorLight}, {7, kSunLight}};
    if (name == "clouds") {
        course.levels_ = {{0, kSunLight}, {9, kSunLight}, {10, kShadeLight}, {15, kShadeLight}, {16, kSunLight}};
        course.repeats_ = true;
    }
    if (course.levels_.empty()) return false;
    *out = course;
    return true;
}

std::vector<std::string> LightCourse::names() {
    return {"sun", "shade", "indoors", "walk-out", "clouds"};
}

double LightCourse::at(double seconds) const {
    const double t = repeats_ ? std::fmod(seconds, levels_.back().seconds) : seconds;
    const auto next =
        std::find_if(levels_.begin(), levels_.end(), [&](const Level& level) { return level.seconds > t; });
    if (next == levels_.begin()) return levels_.front().light;
    const Level& before = *(next - 1);
    if (next == levels_.end()) return before.light;
    return before.light + (next->light - before.light) * (t - before.seconds) / (next->seconds - before.seconds);
}

}  // namespace fieldcal::handheld
