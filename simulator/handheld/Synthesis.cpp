#include "simulator/handheld/Synthesis.h"

#include "simulator/handheld/KeyframeRenderer.h"
#include "simulator/synthesis/Rig.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace fieldcal::handheld {

namespace {

constexpr int kMaxStills = 999;
constexpr double kMaxDriftDeg = 20;

/// A user turns on until the program asks to hold still, which it does when the colour image, reduced to a quarter of
/// its size, has changed enough; root mean square in grey levels, somewhat more than the program demands.
constexpr double kThirdChange = 31, kPlatformChange = 36;
/// Views that are tried for one still. A bare wall and a night never change; they show it in the first ones.
constexpr int kMaxViews = 8, kTelltaleViews = 3;
constexpr double kHopelessShare = 0.3;
constexpr int kPlatformWidth = 1280, kPlatformHeight = 720;

bool refuse(std::string* why, const std::string& reason) {
    if (why != nullptr) *why = reason;
    return false;
}

bool checkDrift(const char* name, const std::optional<std::array<double, 3>>& drift, std::string* why) {
    if (!drift) return true;
    for (double angle : *drift)
        if (!(std::abs(angle) <= kMaxDriftDeg))
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
    if (options.stills < 1 || options.stills > kMaxStills)
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

/// Root mean square difference of two images of 8 bits per channel, reduced to a quarter of their size.
double change(const cv::Mat& before, const cv::Mat& after) {
    cv::Mat small[2];
    cv::resize(before, small[0], {}, 0.25, 0.25, cv::INTER_AREA);
    cv::resize(after, small[1], {}, 0.25, 0.25, cv::INTER_AREA);
    const int colours = before.channels() == 4 ? 3 : 1;  // without alpha, which is constant
    return cv::norm(small[0], small[1], cv::NORM_L2) / std::sqrt(static_cast<double>(small[0].total()) * colours);
}

cv::Mat thirdOf(const session::FrameImages& still) {
    return {static_cast<int>(still.third.height()), static_cast<int>(still.third.width()), CV_8UC4,
            const_cast<std::uint8_t*>(still.third.bytes())};
}

/// The brightness of the rear camera's image, the first plane of NV12.
cv::Mat platformOf(const session::FrameImages& still) {
    return {kPlatformHeight, kPlatformWidth, CV_8UC1, const_cast<std::uint8_t*>(still.platform.data())};
}

/// How much of the demanded change there is from one still to the next, in the camera that shows less of it.
double changeShare(const session::FrameImages& before, const session::FrameImages& after) {
    const double share = change(thirdOf(before), thirdOf(after)) / kThirdChange;
    if (after.platform.empty()) return share;
    return std::min(share, change(platformOf(before), platformOf(after)) / kPlatformChange);
}

}  // namespace

bool synthesize(const std::string& folder, const SynthesisOptions& options,
                const std::function<void(int done, int total)>& progress, std::string* why) {
    if (!check(options, why)) return false;
    auto rig = synthesis::drawRig(
        options.seed, {options.platform, options.thirdDriftDeg, options.platformDriftDeg, options.baselines});
    KeyframeRenderer renderer(options.world, options.seed, rig);
    session::FrameImages still;
    int view = 0;
    for (int i = 0; i < options.stills; ++i) {
        const session::FrameImages before = std::exchange(still, {});
        bool changes = false;
        for (int tried = 0; tried < kMaxViews; ++tried) {
            const std::uint64_t noise = synthesis::mixBits(options.seed) + static_cast<unsigned>(view);
            still = takeStill(*renderer.render(view++, options.platform), noise);
            const double share = i == 0 ? 1 : changeShare(before, still);
            if (share >= 1) break;
            if (share >= kHopelessShare) changes = true;
            if (!changes && tried + 1 >= kTelltaleViews) break;
        }
        rig.frames.push_back(frameEntry(i, options));
        if (!session::writeImages(folder, rig.frames.back(), still, why)) return false;
        if (progress) progress(i + 1, options.stills);
    }
    return session::syncImages(folder, rig, why) && session::writeDescription(folder, rig, why);
}

}  // namespace fieldcal::handheld
