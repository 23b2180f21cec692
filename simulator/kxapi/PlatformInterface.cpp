#include "simulator/kxapi/PlatformInterface.h"

#include "simulator/kxapi/Calibration.h"
#include "simulator/kxapi/ParameterBlock.h"

namespace kxsim {

using fieldcal::session::kPlatformHeight;
using fieldcal::session::kPlatformWidth;

bool PlatformInterface::setPlatformMode(std::int32_t rectified, std::int32_t width, std::int32_t height) {
    return state_.perform("setPlatformMode", Stage::ready, [&] {
        if ((rectified != 0 && rectified != 1) || width != kPlatformWidth || height != kPlatformHeight) {
            return state_.fail(KX_STATUS_FAILED);
        }
        mode_ = rectified;
        return true;
    });
}

bool PlatformInterface::enterInMode(const char* operation, std::int32_t mode) {
    return state_.enterCalibration(operation) && (mode_ == mode || state_.fail(KX_STATUS_FAILED));
}

bool PlatformInterface::nonRectifiedIntrinsics(KXCalibIntrinsicsNonRectified* out) {
    if (!enterInMode("nonRectifiedIntrinsics", 0)) return false;
    *out = rawIntrinsics(state_.description().platform->raw);
    return true;
}

bool PlatformInterface::rectifiedIntrinsics(KXCalibIntrinsicsRectified* out) {
    if (!enterInMode("rectifiedIntrinsics", 1)) return false;
    *out = kxsim::rectifiedIntrinsics(state_.description().platform->rectified);
    return true;
}

const double* PlatformInterface::rectificationRotation() {
    if (!state_.enterCalibration("rectificationRotation")) return nullptr;
    return state_.description().platform->rectification.data();
}

bool PlatformInterface::zToPlatformExtrinsics(KXCalibExtrinsics* out) {
    if (!state_.enterCalibration("zToPlatformExtrinsics")) return false;
    *out = platformExtrinsics(state_.activeBlock, state_.description());
    return true;
}

}  // namespace kxsim
