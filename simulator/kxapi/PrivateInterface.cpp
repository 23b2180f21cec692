#include "simulator/kxapi/PrivateInterface.h"

namespace kxsim {

bool PrivateInterface::writeRectParameters(const KXCalibRectParameters* parameters, bool permanent) {
    return state_.performAtRest("writeRectParameters", [&] {
        if (parameters == nullptr) return state_.fail(KX_STATUS_FAILED);
        if (permanent) return state_.succeeds(state_.flash->write(*parameters));
        state_.temporaryBlock = *parameters;
        return true;
    });
}

bool PrivateInterface::commitCalibration() {
    return state_.performAtRest("commitCalibration", [&] {
        if (!state_.succeeds(state_.flash->commit())) return false;
        state_.temporaryBlock.reset();
        if (state_.flash->isLostWithTheDevice()) report("no KXSIM_FLASH: what was written is gone with this device");
        return true;
    });
}

}  // namespace kxsim
