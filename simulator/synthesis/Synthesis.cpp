#include "simulator/synthesis/Synthesis.h"

#include "simulator/synthesis/Rig.h"
#include "simulator/synthesis/Rotation.h"
#include "simulator/synthesis/StillRenderer.h"
#include "simulator/synthesis/Worlds.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace fieldcal::synthesis {

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
    const auto& names = worldNames();
    if (std::find(names.begin(), names.end(), options.world) == names.end()) {
        std::string list;
        for (const auto& name : names)
            list += (list.empty() ? "" : ", ") + name;
        return refuse(why, "unknown world \"" + options.world + "\"; known are " + list);
    }
    if (options.stills < 1 || options.stills > mostStills)
        return refuse(why, "the number of stills must lie within 1 ... 999");
    if (options.repeat < 1) return refuse(why, "a still must be repeated at least once");
    if (options.brightness && !(*options.brightness >= 1 && *options.brightness <= 900))
        return refuse(why, "the brightness must lie within 1 ... 900");
    return checkDrift("third camera's", options.thirdDriftDeg, why) &&
           checkDrift("platform camera's", options.platformDriftDeg, why);
}

session::FrameEntry frameEntry(int number, const SynthesisOptions& options) {
    char prefix[16];
    std::snprintf(prefix, sizeof prefix, "%03d_", number);
    session::FrameEntry entry;
    entry.infrared = std::string(prefix) + "infrared.png";
    entry.third = std::string(prefix) + "third.png";
    if (options.platform) entry.platform = std::string(prefix) + "platform.png";
    entry.repeat = options.repeat;
    return entry;
}

/// The viewer turns on from still to still, looks up and down and tilts the tablet a little.
class Viewer {
public:
    Viewer(unsigned seed, const World& world)
        : random_(seed, "viewer"), world_(world), yawDeg_(random_.uniform(0, 360)) {}

    /// World directions into the infrared camera.
    cv::Matx33d next() {
        yawDeg_ += random_.uniform(10, 30);
        const double pitchDeg = random_.uniform(world_.lowestPitchDeg, world_.highestPitchDeg);
        const double rollDeg = random_.uniform(-3, 3);
        return rotationFromAngles({0, 0, rollDeg}) * rotationFromAngles({-pitchDeg, 0, 0}) *
               rotationFromAngles({0, -yawDeg_, 0});
    }

    /// How the exposure of this still comes out.
    StillSettings settings(const SynthesisOptions& options) {
        StillSettings settings;
        settings.infrared.meanLevel = random_.uniform(340, 450);
        settings.colour.meanLevel = random_.uniform(0.17, 0.30);
        settings.darkness = world_.darkness;
        if (options.brightness) settings.infrared.meanLevel = *options.brightness / world_.darkness;
        return settings;
    }

private:
    Random random_;
    const World& world_;
    double yawDeg_;
};

}  // namespace

bool synthesize(const std::string& folder, const SynthesisOptions& options,
                const std::function<void(int done, int total)>& progress, std::string* why) {
    if (!check(options, why)) return false;
    auto rig = drawRig(options.seed, {options.platform, options.thirdDriftDeg, options.platformDriftDeg});
    const auto world = buildWorld(options.world, options.seed);
    StillRenderer renderer(*world->field, rig);
    Viewer viewer(options.seed, *world);
    for (int i = 0; i < options.stills; ++i) {
        const cv::Matx33d pose = viewer.next();
        const auto pictures =
            renderer.take(pose, viewer.settings(options), mixBits(options.seed) + static_cast<unsigned>(i));
        rig.frames.push_back(frameEntry(i, options));
        if (!session::writePictures(folder, rig.frames.back(), pictures, why)) return false;
        if (progress) progress(i + 1, options.stills);
    }
    return session::writeDescription(folder, rig, why);
}

}  // namespace fieldcal::synthesis
