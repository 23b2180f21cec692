#include "simulator/handheld/Footage.h"

#include "camera/Rotation.h"
#include "simulator/world/Emitter.h"
#include "simulator/world/Sensors.h"

#include <algorithm>
#include <cmath>
#include <future>

namespace fieldcal::handheld {

namespace {

constexpr double exposureSeconds = 0.006;

/// Degrees about x and y by which the cameras turn between two attitudes.
cv::Point2d motionDeg(const cv::Matx33d& from, const cv::Matx33d& to) {
    const cv::Matx33d turn = to * from.t();
    return {(turn(2, 1) - turn(1, 2)) / 2 * kDegreesPerRadian, (turn(0, 2) - turn(2, 0)) / 2 * kDegreesPerRadian};
}

/// The colour camera's automatic exposure makes up for most of what is missing.
double colourLight(double light) {
    return std::pow(light, 0.3);
}

}  // namespace

Footage::Footage(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig, const LightCourse& light,
                 bool inTime)
    : seed_(seed), light_(light), turner_(rig), maker_(world, seed, rig, inTime) {}

bool Footage::Circumstances::operator==(const Circumstances& other) const {
    return rest == other.rest && emitter == other.emitter && platform == other.platform && light == other.light;
}

bool Footage::advance(std::chrono::milliseconds patience) {
    maker_.request(rest_, withPlatform_);
    if (!enter(patience)) return false;
    ++frame_;
    step(patience);
    current_ = turned_ > 0 ? turning() : resting();
    return true;
}

/// Has the view at which the hand rests, with what is wanted of it.
bool Footage::enter(std::chrono::milliseconds patience) {
    const bool complete = here_ && (!withPlatform_ || !here_->moments.front().view.platform.empty());
    if (complete) return true;
    maker_.pause(false);
    auto view = maker_.view(rest_, withPlatform_, patience);
    if (view == nullptr) return false;
    here_ = std::move(view);
    return true;
}

void Footage::step(std::chrono::milliseconds patience) {
    if (turned_ > 0 && ++turned_ >= here_->rest.turnFrames) {
        here_ = std::move(there_);
        ++rest_;
        turned_ = held_ = 0;
        maker_.pause(false);
        maker_.request(rest_, withPlatform_);
    }
    if (turned_ > 0) return;
    if (++held_ > here_->rest.heldFrames && mayLeave(patience)) turned_ = 1;
}

bool Footage::mayLeave(std::chrono::milliseconds patience) {
    if (emitter_) return false;
    maker_.pause(false);
    there_ = maker_.view(rest_ + 1, withPlatform_, patience);
    return there_ != nullptr;
}

const session::FramePictures* Footage::resting() {
    const Circumstances now{rest_, emitter_, withPlatform_, light_.at(frame_ / framesPerSecond)};
    if (!(now == circumstances_)) isThere_.fill(false);
    circumstances_ = now;
    // As the number of phases is even, a phase that comes round shows the rear camera's picture again, or again none.
    static_assert(tremorFrames % 2 == 0);
    const auto phase = static_cast<std::size_t>(held_ % tremorFrames);
    if (isThere_[phase]) return &trembling_[phase];
    const auto& seen = here_->moments[phase % here_->moments.size()];
    const auto trembled = [&](double frame) { return tremor(seed_, rest_, frame) * seen.pose.camera_world; };
    const double frame = static_cast<double>(phase), lag = colourLagSeconds * framesPerSecond;
    const Attitude attitude{trembled(frame), trembled(frame + lag)};
    const Seeing seeing{[&](world::View* view) { turner_.trembledInfrared(seen, attitude, view); },
                        [&](world::View* view) { turner_.trembledRight(seen, attitude, view); },
                        [&](world::View* view) { turner_.trembledThird(seen, attitude, view); },
                        [&](world::View* view) { turner_.trembledPlatform(seen, attitude, view); }};
    const std::uint64_t noise = synthesis::mixBits(seed_) + static_cast<std::uint64_t>(rest_) * tremorFrames + phase;
    trembling_[phase] = expose(seeing, here_->settings, noise);
    isThere_[phase] = true;
    maker_.pause(std::find(isThere_.begin(), isThere_.end(), false) != isThere_.end());
    return &trembling_[phase];
}

const session::FramePictures* Footage::turning() {
    const SeenView &from = here_->moments.front(), &to = there_->moments.front();
    const auto attitude = [&](double laterSeconds) {
        const double way = (turned_ + laterSeconds * framesPerSecond) / here_->rest.turnFrames;
        return poseBetween(from.pose, to.pose, way).camera_world;
    };
    const bool firstHalf = 2 * turned_ < here_->rest.turnFrames;
    const ViewTurner::Passage passage{firstHalf ? from : to,
                                      firstHalf ? to : from,
                                      {attitude(0), attitude(colourLagSeconds)},
                                      motionDeg(attitude(0), attitude(exposureSeconds))};
    const Seeing seeing{[&](world::View* view) { turner_.passingInfrared(passage, view); },
                        [&](world::View* view) { turner_.passingRight(passage, view); },
                        [&](world::View* view) { turner_.passingThird(passage, view); },
                        [&](world::View* view) { turner_.passingPlatform(passage, view); }};
    moving_ = expose(seeing, firstHalf ? here_->settings : there_->settings, synthesis::mixBits(seed_ ^ frame_));
    return &moving_;
}

session::FramePictures Footage::expose(const Seeing& seeing, const synthesis::StillSettings& settings,
                                       std::uint64_t noise) {
    const double light = light_.at(frame_ / framesPerSecond);
    synthesis::StillSettings infrared = settings, colour = settings;
    infrared.darkness *= light;
    colour.darkness *= colourLight(light);
    world::StereoModel stereo;
    stereo.emitter = emitter_;
    stereo.light = light * settings.darkness;
    stereo.darkness = infrared.darkness;
    world::View view;
    session::FramePictures pictures;
    maker_.pause(true);
    std::future<void> platformDone;
    if (platformShows())
        platformDone = std::async(std::launch::async, [&] {
            seeing.platform(&view);
            pictures.platform = platformFrame(view, colour, noise);
        });
    auto thirdDone = std::async(std::launch::async, [&] {
        seeing.third(&view);
        pictures.third = thirdFrame(view, colour, noise);
    });
    auto rightSeen = std::async(std::launch::async, [&] { seeing.right(&view); });
    seeing.infrared(&view);
    rightSeen.get();
    if (emitter_) addEmitterDots(stereo.light, &view);
    auto rightDone =
        std::async(std::launch::async, [&] { pictures.right = rightInfraredFrame(view, infrared, noise); });
    pictures.infrared = infraredFrame(view, infrared, noise);
    pictures.depth = depthFrame(view, stereo, noise);
    rightDone.get();
    thirdDone.get();
    if (platformDone.valid()) platformDone.get();
    return pictures;
}

}  // namespace fieldcal::handheld
