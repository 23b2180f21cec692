#pragma once

#include "simulator/kxapi/BlockLayout.h"
#include "simulator/kxapi/ModuleState.h"

#include <cmath>

namespace kxsim {

/// Imager settings and emitter: checked and accepted, but without effect on the images of a recording.
class HardwareInterface final : public KXHardwareControl {
public:
    explicit HardwareInterface(ModuleState* state) : state_(*state) {}

    bool setAutoExposure(std::int32_t imagers, bool) override { return accept("setAutoExposure", imagers == 3); }
    bool setGain(float value, std::int32_t imagers) override {
        return accept("setGain", imagers == 3 && std::isfinite(value) && value > 0);
    }
    bool setExposure(float milliseconds, std::int32_t imagers) override {
        return accept("setExposure", imagers == 3 && std::isfinite(milliseconds) && milliseconds > 0);
    }
    bool setHardwareOption(bool, std::int32_t) override { return accept("setHardwareOption", true); }

private:
    bool accept(const char* operation, bool valid) {
        return state_.perform(operation, Stage::ready, [&] { return valid || state_.fail(KX_STATUS_FAILED); });
    }

    ModuleState& state_;
};

class EmitterInterface final : public KXEmitterControl {
public:
    explicit EmitterInterface(ModuleState* state) : state_(*state) {}

    bool setEmitter(bool on) override {
        return state_.perform("setEmitter", Stage::ready, [&] {
            on_ = on;
            return true;
        });
    }
    bool isOn() const { return on_; }

private:
    ModuleState& state_;
    bool on_ = false;
};

/// Writing of the calibration. Like the memory of the real module it accepts any block: an invalid one prevents the
/// module from resuming, and its calibration is then not valid.
class PrivateInterface final : public KXPrivate {
public:
    explicit PrivateInterface(ModuleState* state) : state_(*state) {}

    bool writeRectParameters(const KXCalibRectParameters* parameters, bool permanent) override {
        return state_.performAtRest("writeRectParameters", [&] {
            if (parameters == nullptr) return state_.fail(KX_STATUS_FAILED);
            Block arrived = *parameters;
            const std::optional<Fault>& fault = state_.fault();
            if (fault && fault->kind == FaultKind::garble) garble(&arrived, fault->number);
            if (permanent) {
                state_.block->write(arrived);
            } else {
                state_.temporaryBlock = arrived;
            }
            return true;
        });
    }
    bool commitCalibration() override {
        return state_.performAtRest("commitCalibration", [&] {
            if (!state_.succeeds(state_.block->commit(state_.settings.faults.livingBlock()))) return false;
            if (state_.settings.faults.holds("displaced-colour")) state_.streams->displaceColour();
            state_.temporaryBlock.reset();
            if (state_.block->isLostWithTheDevice())
                report("no KXSIM_FLASH: what was written is gone with this device");
            return true;
        });
    }

private:
    ModuleState& state_;
};

}  // namespace kxsim
