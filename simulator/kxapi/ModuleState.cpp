#include "simulator/kxapi/ModuleState.h"

#include "simulator/kxapi/ParameterBlock.h"

namespace kxsim {

bool ModuleState::fail(std::int32_t status) {
    lastStatus = status;
    return false;
}

bool ModuleState::succeeds(const FlashResult& result) {
    if (!result.why.empty()) report(result.why);
    return result.ok() || fail(result.status);
}

bool ModuleState::loadCalibration() {
    if (!temporaryBlock) return succeeds(flash->load(&activeBlock));
    std::string why;
    if (!makesSense(*temporaryBlock, &why)) return succeeds({KX_STATUS_NOT_CALIBRATED, "temporary block: " + why});
    activeBlock = *temporaryBlock;
    return true;
}

bool ModuleState::enter(const char* operation, Stage atLeast) {
    if (const std::optional<std::int32_t> status = settings.faults.strike(operation)) return fail(*status);
    return stage >= atLeast || fail(KX_STATUS_FAILED);
}

bool ModuleState::enterAtRest(const char* operation) {
    return enter(operation, Stage::ready) && (stage != Stage::capturing || fail(KX_STATUS_FAILED));
}

bool ModuleState::enterCalibration(const char* operation) {
    return enter(operation, Stage::ready) && (description().module.calibrationValid || fail(KX_STATUS_NOT_CALIBRATED));
}

}  // namespace kxsim
