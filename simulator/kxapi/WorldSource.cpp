#include "simulator/kxapi/WorldSource.h"

#include "simulator/handheld/Footage.h"
#include "simulator/synthesis/Rig.h"
#include "simulator/world/Worlds.h"

#include <algorithm>
#include <functional>

namespace kxsim {
namespace {

using fieldcal::handheld::Footage;
using fieldcal::handheld::LightCourse;
using fieldcal::session::SessionDescription;

/// How long one grab waits for a view; after that it answers without a new frame, before anybody takes the module for
/// dead.
constexpr std::chrono::milliseconds kPatience{8000};

/// Its world is built, and rendering begins, with the first grab: who asks for texts and calibrations only does not
/// pay.
class WorldSource final : public FrameSource {
public:
    WorldSource(const Settings& settings, fieldcal::synthesis::Rig rig, const LightCourse& light)
        : rig_(std::move(rig)),
          description_(rig_),
          waits_(settings.speed == 0),
          hasRearCamera_(settings.platform != PlatformChoice::absent),
          open_([=] { return std::make_unique<Footage>(settings.world, settings.seed, rig_, light, !waits_); }) {
        if (settings.platform != PlatformChoice::calibrated) description_.platform.reset();
    }

    const SessionDescription& description() const override { return description_; }
    const SessionDescription& factory() const override { return rig_; }
    double grabsPerSecond() const override { return fieldcal::handheld::framesPerSecond; }
    bool advance(std::string*) override {
        if (footage_ == nullptr) footage_ = open_();
        footage_->setEmitter(emitter_);
        footage_->setPlatformWanted(platformWanted_);
        isNew_ = footage_->advance(waits_ || current() == nullptr ? kPatience : kPatience * 0);
        grabs_ += isNew_ ? 1 : 0;
        return true;
    }
    const fieldcal::session::FramePictures* current() const override {
        return footage_ ? footage_->current() : nullptr;
    }
    bool hasNewPlatformPicture() const override { return isNew_ && grabs_ % 2 == 1 && !current()->platform.empty(); }
    std::uint64_t grabs() const override { return grabs_; }
    void setEmitter(bool on) override { emitter_ = on; }
    void setPlatformWanted(bool wanted) override { platformWanted_ = wanted && hasRearCamera_; }

private:
    fieldcal::synthesis::Rig rig_;
    SessionDescription description_;
    bool waits_, hasRearCamera_;
    std::function<std::unique_ptr<Footage>()> open_;
    std::unique_ptr<Footage> footage_;
    bool emitter_ = false, platformWanted_ = false;
    bool isNew_ = false;
    std::uint64_t grabs_ = 0;
};

bool isOneOf(const std::vector<std::string>& names, const char* what, const std::string& name, std::string* why) {
    if (std::find(names.begin(), names.end(), name) != names.end()) return true;
    *why = std::string(what) + ": \"" + name + "\" is none of";
    for (const std::string& known : names)
        *why += ' ' + known;
    return false;
}

}  // namespace

const bool canRenderWorlds = true;

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
