#include "simulator/handheld/Synthesis.h"

#include "simulator/handheld/Studio.h"
#include "simulator/synthesis/Rig.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace fieldcal::handheld {

namespace {

constexpr int mostStills = 999;
constexpr double largestDriftDeg = 20;

bool refuse(std::string* why, const std::string& reason) {
    if (why != nullptr) *why = reason;
    return false;
}

bool checkDrift(const char* name, const std::optional<std::array<double, 3>>& drift, std::string* why) {
    if (!drift) return true;
    for (double angle : *drift)
        if (!(std::abs(angle) <= largestDriftDeg))
            return refuse(why, std::string("the ") + name + " drift must lie within -20 ... 20 degrees");
    return true;
}

bool check(const SynthesisOptions& options, std::string* why) {
    const auto& names = world::worldNames();
    if (std::find(names.begin(), names.end(), options.world) == names.end()) {
        std::string list;
        for (const auto& name : names)
            list += (list.empty() ? "" : ", ") + name;
        return refuse(why, "unknown world \"" + options.world + "\"; known are " + list);
    }
    if (options.stills < 1 || options.stills > mostStills)
        return refuse(why, "the number of stills must lie within 1 ... 999");
    if (options.repeat < 1) return refuse(why, "a still must be repeated at least once");
    return checkDrift("third camera's", options.thirdDriftDeg, why) &&
           checkDrift("platform camera's", options.platformDriftDeg, why);
}

session::FrameEntry frameEntry(int number, const SynthesisOptions& options) {
    char prefix[16];
    std::snprintf(prefix, sizeof prefix, "%03d_", number);
    session::FrameEntry entry;
    entry.infrared = std::string(prefix) + "infrared.png";
    entry.third = std::string(prefix) + "third.png";
    entry.depth = std::string(prefix) + "depth.png";
    entry.right = std::string(prefix) + "right.png";
    if (options.platform) entry.platform = std::string(prefix) + "platform.png";
    entry.repeat = options.repeat;
    return entry;
}

}  // namespace

bool synthesize(const std::string& folder, const SynthesisOptions& options,
                const std::function<void(int done, int total)>& progress, std::string* why) {
    if (!check(options, why)) return false;
    auto rig = synthesis::drawRig(
        options.seed, {options.platform, options.thirdDriftDeg, options.platformDriftDeg, options.baselines});
    Studio studio(options.world, options.seed, rig);
    for (int i = 0; i < options.stills; ++i) {
        const std::uint64_t noise = synthesis::mixBits(options.seed) + static_cast<unsigned>(i);
        rig.frames.push_back(frameEntry(i, options));
        if (!session::writePictures(folder, rig.frames.back(), takeStill(*studio.make(i, options.platform), noise),
                                    why))
            return false;
        if (progress) progress(i + 1, options.stills);
    }
    return session::syncPictures(folder, rig, why) && session::writeDescription(folder, rig, why);
}

}  // namespace fieldcal::handheld
