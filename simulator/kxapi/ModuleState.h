#pragma once

#include "kxapi/KXAPI.h"
#include "simulator/kxapi/BlockStore.h"
#include "simulator/kxapi/FrameSource.h"
#include "simulator/kxapi/Settings.h"
#include "simulator/kxapi/Streams.h"

#include <thread>

namespace kxsim {

/// The stages of a device; each one permits the operations of the previous ones.
enum class Stage { closed, opened, ready, capturing };

/// The outcome of a call before its operation: it fails with a status, is carried out, or is only reported as a
/// success.
enum class Gate { refused, open, lie };

/// The state that the device and its interfaces share. Every call passes through `enter` or `perform`.
struct ModuleState {
    Settings settings;
    Stage stage = Stage::closed;
    std::unique_ptr<FrameSource> source;  ///< set from `opened` on
    std::optional<BlockStore> block;      ///< set from `opened` on
    std::optional<Streams> streams;       ///< set from `opened` on
    std::int32_t lastStatus = KX_STATUS_OK;
    std::thread::id failedOn;  ///< the thread to which `lastStatus` belongs

    Block activeBlock{};                  ///< the block that the module works with
    bool blockIsValid = false;            ///< whether `activeBlock` is valid
    std::optional<Block> temporaryBlock;  ///< used instead of the committed one after the next resume
    bool resting = false;                 ///< set between `stopCapture` and the next resume

    bool depthModeSet = false;
    bool thirdModeSet = false;
    bool depthEnabled = false;
    bool leftEnabled = false;
    bool rightEnabled = false;
    bool thirdEnabled = false;

    /// Records the status and returns false.
    bool fail(std::int32_t status);
    /// Returns true for a success; otherwise reports and records the failure.
    bool succeeds(const BlockResult& result);
    /// Loads the block that is used from now on.
    bool loadCalibration();
    /// Counts the call. Returns false with a status when the call has a fault, or when the device has not reached the
    /// stage.
    bool enter(const char* operation, Stage atLeast) { return pass(operation, atLeast) == Gate::open; }
    /// The same, and carries out the operation unless the fault is to skip it silently.
    template <typename Action>
    bool perform(const char* operation, Stage atLeast, Action action) {
        const Gate gate = pass(operation, atLeast);
        return gate == Gate::lie || (gate == Gate::open && action() && completesCall());
    }
    /// The fault of the call in progress.
    const std::optional<Fault>& fault() const { return fault_; }
    /// For operations that require the capture to be stopped: ready, but not capturing.
    template <typename Action>
    bool performAtRest(const char* operation, Action action) {
        return perform(operation, Stage::ready, [&] { return rests() && action(); });
    }
    /// For queries of the calibration: fails with status 4 when it is invalid.
    bool enterCalibration(const char* operation);

    bool calibrationValid() const { return blockIsValid && description().module.calibrationValid; }

    const fieldcal::session::SessionDescription& description() const { return source->description(); }
    /// The current frame; null before the first grab.
    const fieldcal::session::FrameImages* frame() const { return source ? source->current() : nullptr; }

private:
    Gate pass(const char* operation, Stage atLeast);
    bool completesCall();
    bool rests() { return stage != Stage::capturing || fail(KX_STATUS_FAILED); }

    std::optional<Fault> fault_;
    bool disconnected_ = false;  ///< unplugged or without power
};

}  // namespace kxsim
