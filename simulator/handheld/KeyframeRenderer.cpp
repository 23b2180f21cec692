#include "simulator/handheld/KeyframeRenderer.h"

namespace fieldcal::handheld {

namespace {

/// Number of views and their time differences for a keyframe in a moving world.
constexpr int kMomentsInMotion = 3;
constexpr double kMomentSeconds = 0.12, kRestSeconds = 3;

/// Automatic exposure settles at a slightly different level each time.
synthesis::StillSettings drawSettings(std::uint64_t seed, int number, double darkness) {
    synthesis::Random random(seed + static_cast<std::uint64_t>(number), "exposure");
    synthesis::StillSettings settings;
    settings.infrared.meanLevel = random.uniform(340, 450);
    settings.colour.meanLevel = random.uniform(0.17, 0.30);
    settings.darkness = darkness;
    return settings;
}

}  // namespace

session::FrameImages takeStill(const Keyframe& seen, std::uint64_t noise) {
    const world::View& view = seen.moments.front().view;
    world::StereoModel stereo;
    stereo.darkness = seen.settings.darkness;
    return {infraredFrame(view, seen.settings, noise), depthFrame(view, stereo, noise),
            thirdFrame(view, seen.settings, noise), platformFrame(view, seen.settings, noise),
            rightInfraredFrame(view, seen.settings, noise)};
}

KeyframeRenderer::KeyframeRenderer(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig)
    : seed_(seed),
      stage_(world::buildWorld(world, seed)),
      cameras_(rig),
      hand_(seed, stage_->lowestPitchDeg, stage_->highestPitchDeg) {}

std::shared_ptr<const Keyframe> KeyframeRenderer::render(int number, bool withPlatform,
                                                         world::Interruption* interruption) {
    auto view = std::make_shared<Keyframe>();
    view->rest = hand_.rest(number);
    view->settings = drawSettings(seed_, number, stage_->darkness);
    const int moments = stage_->moves ? kMomentsInMotion : 1;
    for (int i = 0; i < moments; ++i) {
        const double seconds = number * kRestSeconds + i * kMomentSeconds;
        const world::Moment infrared{view->rest.pose, seconds}, colour{view->rest.pose, seconds + kColourLagSeconds};
        view->moments.push_back(
            {view->rest.pose, cameras_.see(*stage_->world, infrared, colour, withPlatform, interruption)});
    }
    return view;
}

}  // namespace fieldcal::handheld
