#pragma once

#include "kxapi/KXAPI.h"
#include "simulator/kxapi/FlashMemory.h"
#include "simulator/kxapi/SessionPlayer.h"
#include "simulator/kxapi/Settings.h"

namespace kxsim {

/// What a device has been through; each stage allows what the ones before it do.
enum class Stage { closed, opened, ready, capturing };

/// The state that the device and its interfaces share, and the gate through which every call passes.
struct ModuleState {
    Settings settings;
    Stage stage = Stage::closed;
    std::unique_ptr<SessionPlayer> player;  ///< set from `opened` on
    std::unique_ptr<FlashMemory> flash;     ///< set from `opened` on
    std::int32_t lastStatus = KX_STATUS_OK;

    KXCalibRectParameters activeBlock{};                  ///< what the module works with
    std::optional<KXCalibRectParameters> temporaryBlock;  ///< to be used instead of the flash's from the next resuming
    bool resting = false;                                 ///< `stopCapture` began a rest

    bool depthModeSet = false;
    bool thirdModeSet = false;
    bool depthEnabled = false;
    bool leftEnabled = false;
    bool rightEnabled = false;
    bool thirdEnabled = false;

    /// Notes the status and returns false.
    bool fail(std::int32_t status);
    /// Whether it did; else reports and notes why not.
    bool succeeds(const FlashResult& result);
    /// Takes up the block that is to be used from now on.
    bool loadCalibration();
    /// Counts the call. False with a status when a fault hits it or the device is not that far.
    bool enter(const char* operation, Stage atLeast);
    /// For operations that need the capture to rest: ready, but not capturing.
    bool enterAtRest(const char* operation);
    /// For what comes from the calibration: status 4 when it is invalid.
    bool enterCalibration(const char* operation);

    const fieldcal::session::SessionDescription& description() const { return player->description(); }
    /// The current frame, null while nothing was grabbed.
    const fieldcal::session::FramePictures* frame() const { return player ? player->current() : nullptr; }
};

}  // namespace kxsim
