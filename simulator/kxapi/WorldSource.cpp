#include "simulator/kxapi/WorldSource.h"

#include "simulator/handheld/FrameGenerator.h"
#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Rig.h"
#include "simulator/world/Worlds.h"

#include <algorithm>
#include <functional>

namespace kxsim {
namespace {

using fieldcal::handheld::FrameGenerator;
using fieldcal::handheld::LightCourse;
using fieldcal::session::SessionDescription;

/// Longest wait of one grab for a keyframe. After that the grab returns without a new frame, before a caller gives up
/// on the module.
constexpr std::chrono::milliseconds kPatience{8000};

/// Exposes an infrared image of the same view again: each pixel becomes brighter or darker by at most one level.
void exposeAgain(std::uint64_t seed, fieldcal::ImageFrame16* image) {
    constexpr std::uint16_t kBrightest = 1023;
    std::uint16_t* pixels = image->pixels();
    const std::size_t count = image->byteCount() / sizeof(std::uint16_t);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t bits = fieldcal::synthesis::mixBits(seed + i);
        const int level = pixels[i] + static_cast<int>(bits & 1U) - static_cast<int>(bits >> 1 & 1U);
        pixels[i] = static_cast<std::uint16_t>(std::clamp<int>(level, 0, kBrightest));
    }
}

/// The frame generator delivers 30 frame sets a second, the module 60. Every second frame set consists of the infrared
/// images of the previous one, exposed again, with the same depth and colour image. The world is built, and rendering
/// begins, with the first grab, because some callers read only texts and calibrations.
class WorldSource final : public FrameSource {
public:
    WorldSource(const Settings& settings, fieldcal::synthesis::Rig rig, const LightCourse& light)
        : rig_(std::move(rig)),
          description_(rig_),
          waits_(settings.speed == 0),
          hasRearCamera_(settings.platform != PlatformChoice::absent),
          open_([=] { return std::make_unique<FrameGenerator>(settings.world, settings.seed, rig_, light, !waits_); }) {
        if (settings.platform != PlatformChoice::calibrated) description_.platform.reset();
    }

    const SessionDescription& description() const override { return description_; }
    const SessionDescription& factory() const override { return rig_; }
    double grabsPerSecond() const override { return 2 * fieldcal::handheld::kFramesPerSecond; }
    bool advance(std::string*) override {
        if (current_ != nullptr && current_ != &between_) {
            exposeBetween();
            return true;
        }
        if (generator_ == nullptr) generator_ = open_();
        generator_->setEmitter(emitter_);
        generator_->setPlatformWanted(platformWanted_);
        isNew_ = generator_->advance(waits_ || generator_->current() == nullptr ? kPatience : kPatience * 0);
        if (!isNew_) return true;
        current_ = generator_->current();
        ++grabs_;
        return true;
    }
    const fieldcal::session::FrameImages* current() const override { return current_; }
    bool hasNewPlatformImage() const override { return isNew_ && !current()->platform.empty(); }
    std::uint64_t grabs() const override { return grabs_; }
    void setEmitter(bool on) override { emitter_ = on; }
    void setPlatformWanted(bool wanted) override { platformWanted_ = wanted && hasRearCamera_; }

private:
    void exposeBetween() {
        between_ = *current_;
        between_.platform.clear();
        const std::uint64_t seed = fieldcal::synthesis::mixBits(grabs_);
        exposeAgain(seed, &between_.infrared);
        exposeAgain(~seed, &between_.right);
        current_ = &between_;
        isNew_ = false;
        ++grabs_;
    }

    fieldcal::synthesis::Rig rig_;
    SessionDescription description_;
    bool waits_, hasRearCamera_;
    std::function<std::unique_ptr<FrameGenerator>()> open_;
    std::unique_ptr<FrameGenerator> generator_;
    bool emitter_ = false, platformWanted_ = false;
    bool isNew_ = false;
    std::uint64_t grabs_ = 0;
    fieldcal::session::FrameImages between_;
    const fieldcal::session::FrameImages* current_ = nullptr;
};

bool isOneOf(const std::vector<std::string>& names, const char* what, const std::string& name, std::string* why) {
    if (std::find(names.begin(), names.end(), name) != names.end()) return true;
    *why = std::string(what) + ": \"" + name + "\" is none of";
    for (const std::string& known : names)
        *why += ' ' + known;
    return false;
}

}  // namespace

const bool kCanRenderWorlds = true;

std::unique_ptr<FrameSource> openWorld(const Settings& settings, std::string* why) {
    LightCourse light;
    if (!isOneOf(fieldcal::world::worldNames(), "KXSIM_WORLD", settings.world, why)) return nullptr;
    if (!LightCourse::find(settings.light, &light)) {
        isOneOf(LightCourse::names(), "KXSIM_LIGHT", settings.light, why);
        return nullptr;
    }
    const auto rig = fieldcal::synthesis::drawRig(settings.seed, {true, settings.drift, settings.platformDrift});
    return std::make_unique<WorldSource>(settings, rig, light);
}

}  // namespace kxsim
