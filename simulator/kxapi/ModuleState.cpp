#include "simulator/kxapi/ModuleState.h"

#include "simulator/kxapi/ParameterBlock.h"

namespace kxsim {

bool ModuleState::fail(std::int32_t status) {
    lastStatus = status;
    return false;
}

bool ModuleState::succeeds(const FlashResult& result) {
    if (!result.why.empty()) report(result.why);
    gone_ = gone_ || result.status == KX_STATUS_NO_DEVICE;
    return result.ok() || fail(result.status);
}

bool ModuleState::loadCalibration() {
    std::string why;
    if (!temporaryBlock) {
        if (!succeeds(flash->load(&activeBlock))) return false;
    } else if (makesSense(*temporaryBlock, &why)) {
        activeBlock = *temporaryBlock;
    } else {
        return succeeds({KX_STATUS_NOT_CALIBRATED, "temporary block: " + why});
    }
    blockMakesSense = true;
    return true;
}

Gate ModuleState::pass(const char* operation, Stage atLeast) {
    const std::optional<Fault> fault = settings.faults.strike(operation);
    if (fault && fault->kind == FaultKind::hang) hang();
    gone_ = gone_ || (fault && fault->kind == FaultKind::gone);
    bool open = false;
    if (gone_) {
        fail(KX_STATUS_NO_DEVICE);
    } else if (fault && fault->kind == FaultKind::lie) {
        return Gate::lie;
    } else if (fault) {
        fail(fault->status);
    } else {
        open = stage >= atLeast || fail(KX_STATUS_FAILED);
    }
    return open ? Gate::open : Gate::refused;
}

bool ModuleState::enterCalibration(const char* operation) {
    return enter(operation, Stage::ready) && (calibrationValid() || fail(KX_STATUS_NOT_CALIBRATED));
}

}  // namespace kxsim
