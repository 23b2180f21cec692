#include "simulator/handheld/FrameGenerator.h"

#include "camera/Rotation.h"
#include "simulator/world/Emitter.h"
#include "simulator/world/Sensors.h"

#include <algorithm>
#include <cmath>
#include <future>

namespace fieldcal::handheld {

namespace {

constexpr double kExposureSeconds = 0.006;

/// Returns the rotation of the cameras between two attitudes in degrees about x and y.
cv::Point2d motionDeg(const cv::Matx33d& from, const cv::Matx33d& to) {
    const cv::Matx33d turn = to * from.t();
    return {(turn(2, 1) - turn(1, 2)) / 2 * kDegreesPerRadian, (turn(0, 2) - turn(2, 0)) / 2 * kDegreesPerRadian};
}

/// Relative brightness of the colour images. Automatic exposure compensates most of the missing light.
double colourLight(double light) {
    return std::pow(light, 0.3);
}

}  // namespace

FrameGenerator::FrameGenerator(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig,
                               const LightCourse& light, bool inTime)
    : seed_(seed), light_(light), turner_(rig), prefetcher_(world, seed, rig, inTime) {}

bool FrameGenerator::CacheKey::operator==(const CacheKey& other) const {
    return rest == other.rest && emitter == other.emitter && platform == other.platform && light == other.light;
}

bool FrameGenerator::advance(std::chrono::milliseconds patience) {
    prefetcher_.request(rest_, withPlatform_);
    if (!prepareKeyframe(patience)) return false;
    ++frame_;
    step(patience);
    current_ = turned_ > 0 ? turning() : resting();
    return true;
}

/// Waits for the current keyframe, with an image of the rear camera if one is required.
bool FrameGenerator::prepareKeyframe(std::chrono::milliseconds patience) {
    const bool complete = keyframe_ && (!withPlatform_ || !keyframe_->moments.front().view.platform.empty());
    if (complete) return true;
    prefetcher_.pause(false);
    auto view = prefetcher_.view(rest_, withPlatform_, patience);
    if (view == nullptr) return false;
    keyframe_ = std::move(view);
    return true;
}

void FrameGenerator::step(std::chrono::milliseconds patience) {
    if (turned_ > 0 && ++turned_ >= keyframe_->rest.turnFrames) {
        keyframe_ = std::move(nextKeyframe_);
        ++rest_;
        turned_ = held_ = 0;
        prefetcher_.pause(false);
        prefetcher_.request(rest_, withPlatform_);
    }
    if (turned_ > 0) return;
    if (++held_ > keyframe_->rest.heldFrames && canLeave(patience)) turned_ = 1;
}

bool FrameGenerator::canLeave(std::chrono::milliseconds patience) {
    if (emitter_) return false;
    prefetcher_.pause(false);
    nextKeyframe_ = prefetcher_.view(rest_ + 1, withPlatform_, patience);
    return nextKeyframe_ != nullptr;
}

const session::FrameImages* FrameGenerator::resting() {
    const CacheKey now{rest_, emitter_, withPlatform_, light_.at(frame_ / kFramesPerSecond)};
    if (!(now == cacheKey_)) isCached_.fill(false);
    cacheKey_ = now;
    // The number of phases is even, so a repeated phase always has the same images of the rear camera, or always none.
    static_assert(kTremorFrames % 2 == 0);
    const auto phase = static_cast<std::size_t>(held_ % kTremorFrames);
    if (isCached_[phase]) return &cached_[phase];
    const auto& seen = keyframe_->moments[phase % keyframe_->moments.size()];
    const auto trembled = [&](double frame) { return tremor(seed_, rest_, frame) * seen.pose.camera_world; };
    const double frame = static_cast<double>(phase), lag = kColourLagSeconds * kFramesPerSecond;
    const Attitude attitude{trembled(frame), trembled(frame + lag)};
    const ViewFunctions functions{[&](world::View* view) { turner_.tremorInfrared(seen, attitude, view); },
                                  [&](world::View* view) { turner_.tremorRight(seen, attitude, view); },
                                  [&](world::View* view) { turner_.tremorThird(seen, attitude, view); },
                                  [&](world::View* view) { turner_.tremorPlatform(seen, attitude, view); }};
    const std::uint64_t noise = synthesis::mixBits(seed_) + static_cast<std::uint64_t>(rest_) * kTremorFrames + phase;
    cached_[phase] = expose(functions, keyframe_->settings, noise);
    isCached_[phase] = true;
    prefetcher_.pause(std::find(isCached_.begin(), isCached_.end(), false) != isCached_.end());
    return &cached_[phase];
}

const session::FrameImages* FrameGenerator::turning() {
    const RenderedView &from = keyframe_->moments.front(), &to = nextKeyframe_->moments.front();
    const auto attitude = [&](double laterSeconds) {
        const double way = (turned_ + laterSeconds * kFramesPerSecond) / keyframe_->rest.turnFrames;
        return poseBetween(from.pose, to.pose, way).camera_world;
    };
    const bool firstHalf = 2 * turned_ < keyframe_->rest.turnFrames;
    const ViewTurner::Transition transition{firstHalf ? from : to,
                                            firstHalf ? to : from,
                                            {attitude(0), attitude(kColourLagSeconds)},
                                            motionDeg(attitude(0), attitude(kExposureSeconds))};
    const ViewFunctions functions{[&](world::View* view) { turner_.transitionInfrared(transition, view); },
                                  [&](world::View* view) { turner_.transitionRight(transition, view); },
                                  [&](world::View* view) { turner_.transitionThird(transition, view); },
                                  [&](world::View* view) { turner_.transitionPlatform(transition, view); }};
    turnedFrame_ = expose(functions, firstHalf ? keyframe_->settings : nextKeyframe_->settings,
                          synthesis::mixBits(seed_ ^ frame_));
    return &turnedFrame_;
}

session::FrameImages FrameGenerator::expose(const ViewFunctions& functions, const synthesis::StillSettings& settings,
                                            std::uint64_t noise) {
    const double light = light_.at(frame_ / kFramesPerSecond);
    synthesis::StillSettings infrared = settings, colour = settings;
    infrared.darkness *= light;
    colour.darkness *= colourLight(light);
    world::StereoModel stereo;
    stereo.emitter = emitter_;
    stereo.light = light * settings.darkness;
    stereo.darkness = infrared.darkness;
    world::View view;
    session::FrameImages images;
    prefetcher_.pause(true);
    std::future<void> platformDone;
    if (platformShows())
        platformDone = std::async(std::launch::async, [&] {
            functions.platform(&view);
            images.platform = platformFrame(view, colour, noise);
        });
    auto thirdDone = std::async(std::launch::async, [&] {
        functions.third(&view);
        images.third = thirdFrame(view, colour, noise);
    });
    auto rightSeen = std::async(std::launch::async, [&] { functions.right(&view); });
    functions.infrared(&view);
    rightSeen.get();
    if (emitter_) addEmitterDots(stereo.light, &view);
    auto rightDone = std::async(std::launch::async, [&] { images.right = rightInfraredFrame(view, infrared, noise); });
    images.infrared = infraredFrame(view, infrared, noise);
    images.depth = depthFrame(view, stereo, noise);
    rightDone.get();
    thirdDone.get();
    if (platformDone.valid()) platformDone.get();
    return images;
}

}  // namespace fieldcal::handheld
