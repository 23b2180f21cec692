#pragma once

#include "kxapi/KXAPI.h"
#include "simulator/kxapi/BlockStore.h"
#include "simulator/kxapi/FrameSource.h"
#include "simulator/kxapi/Settings.h"
#include "simulator/kxapi/Streams.h"

#include <thread>

namespace kxsim {

/// What a device has been through; each stage allows what the ones before it do.
enum class Stage { closed, opened, ready, capturing };

/// What becomes of a call: it fails (the status is noted), is done, or only pretends to be.
enum class Gate { refused, open, lie };

/// The state that the device and its interfaces share, and the gate through which every call passes.
struct ModuleState {
    Settings settings;
    Stage stage = Stage::closed;
    std::unique_ptr<FrameSource> source;  ///< set from `opened` on
    std::optional<BlockStore> block;      ///< set from `opened` on
    std::optional<Streams> streams;       ///< set from `opened` on
    std::int32_t lastStatus = KX_STATUS_OK;
    std::thread::id failedOn;  ///< the thread to which `lastStatus` belongs

    Block activeBlock{};                  ///< what the module works with
    bool blockMakesSense = false;         ///< `activeBlock`
    std::optional<Block> temporaryBlock;  ///< to be used instead of the committed one from the next resuming
    bool resting = false;                 ///< `stopCapture` began a rest

    bool depthModeSet = false;
    bool thirdModeSet = false;
    bool depthEnabled = false;
    bool leftEnabled = false;
    bool rightEnabled = false;
    bool thirdEnabled = false;

    /// Notes the status and returns false.
    bool fail(std::int32_t status);
    /// Whether it did; else reports and notes why not.
    bool succeeds(const BlockResult& result);
    /// Takes up the block that is to be used from now on.
    bool loadCalibration();
    /// Counts the call. False with a status when a fault hits it or the device is not that far.
    bool enter(const char* operation, Stage atLeast) { return pass(operation, atLeast) == Gate::open; }
    /// The same, and does what the operation does; not when it is ordered to lie.
    template <typename Action>
    bool perform(const char* operation, Stage atLeast, Action action) {
        const Gate gate = pass(operation, atLeast);
        return gate == Gate::lie || (gate == Gate::open && action() && endsWell());
    }
    /// What hits the call that is under way.
    const std::optional<Fault>& fault() const { return fault_; }
    /// For operations that need the capture to rest: ready, but not capturing.
    template <typename Action>
    bool performAtRest(const char* operation, Action action) {
        return perform(operation, Stage::ready, [&] { return rests() && action(); });
    }
    /// For what comes from the calibration: status 4 when it is invalid.
    bool enterCalibration(const char* operation);

    bool calibrationValid() const { return blockMakesSense && description().module.calibrationValid; }

    const fieldcal::session::SessionDescription& description() const { return source->description(); }
    /// The current frame, null while nothing was grabbed.
    const fieldcal::session::FramePictures* frame() const { return source ? source->current() : nullptr; }

private:
    Gate pass(const char* operation, Stage atLeast);
    bool endsWell();
    bool rests() { return stage != Stage::capturing || fail(KX_STATUS_FAILED); }

    std::optional<Fault> fault_;
    bool gone_ = false;  ///< unplugged or without power
};

}  // namespace kxsim
