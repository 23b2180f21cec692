#include "simulator/kxapi/ModuleState.h"

#include "simulator/kxapi/ParameterBlock.h"

namespace kxsim {

bool ModuleState::fail(std::int32_t status) {
    lastStatus = status;
    failedOn = std::this_thread::get_id();
    return false;
}

bool ModuleState::succeeds(const BlockResult& result) {
    if (!result.why.empty()) report(result.why);
    return result.ok() || fail(result.status);
}

bool ModuleState::loadCalibration() {
    std::string why;
    if (!temporaryBlock) {
        if (!succeeds(block->load(&activeBlock))) return false;
    } else if (isValidBlock(*temporaryBlock, &why)) {
        activeBlock = *temporaryBlock;
    } else {
        return succeeds({KX_STATUS_NOT_CALIBRATED, "temporary block: " + why});
    }
    blockIsValid = true;
    return true;
}

Gate ModuleState::pass(const char* operation, Stage atLeast) {
    fault_ = settings.faults.strike(operation);
    if (fault_) beginFault(*fault_);
    disconnected_ = disconnected_ || (fault_ && fault_->kind == FaultKind::gone);
    bool open = false;
    if (disconnected_) {
        fail(KX_STATUS_NO_DEVICE);
    } else if (fault_ && fault_->kind == FaultKind::lie) {
        return Gate::lie;
    } else if (fault_ && !isDoneUnder(fault_->kind)) {
        fail(static_cast<std::int32_t>(fault_->number));
    } else {
        open = stage >= atLeast || fail(KX_STATUS_FAILED);
    }
    return open ? Gate::open : Gate::refused;
}

/// Called after an operation that was carried out.
bool ModuleState::completesCall() {
    if (!fault_) return true;
    endFault(*fault_);
    disconnected_ = fault_->kind == FaultKind::goneAfter;
    if (disconnected_) return fail(KX_STATUS_NO_DEVICE);
    return fault_->kind != FaultKind::done || fail(static_cast<std::int32_t>(fault_->number));
}

bool ModuleState::enterCalibration(const char* operation) {
    return enter(operation, Stage::ready) && (calibrationValid() || fail(KX_STATUS_NOT_CALIBRATED));
}

}  // namespace kxsim
