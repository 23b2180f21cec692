#include "simulator/kxapi/CameraInterfaces.h"

#include "simulator/kxapi/Calibration.h"
#include "simulator/kxapi/OtherConventions.h"
#include "simulator/kxapi/ParameterBlock.h"

namespace kxsim {

using fieldcal::session::kPlatformHeight;
using fieldcal::session::kPlatformWidth;

bool ThirdInterface::setThirdStreamMode(bool rectified, std::int32_t width, std::int32_t height,
                                        std::int32_t framesPerSecond, std::int32_t pixelFormat) {
    return state_.performAtRest("setThirdStreamMode", [&] {
        state_.thirdModeSet =
            rectified && width > 0 && height > 0 && framesPerSecond > 0 && pixelFormat == KX_PIXEL_FORMAT_BGRA8;
        return state_.thirdModeSet || state_.fail(KX_STATUS_FAILED);
    });
}

bool ThirdInterface::setThirdEnabled(bool on) {
    return state_.performAtRest("setThirdEnabled", [&] {
        state_.thirdEnabled = on;
        return true;
    });
}

bool ThirdInterface::thirdEnabled() {
    return state_.enter("thirdEnabled", Stage::opened) && state_.thirdEnabled;
}

const std::uint8_t* ThirdInterface::thirdImage() {
    if (!state_.enter("thirdImage", Stage::opened) || !state_.thirdEnabled || state_.frame() == nullptr) return nullptr;
    return state_.streams->third();
}

std::int32_t ThirdInterface::thirdWidth() {
    return state_.enter("thirdWidth", Stage::opened) ? state_.description().third.width : 0;
}

std::int32_t ThirdInterface::thirdHeight() {
    return state_.enter("thirdHeight", Stage::opened) ? state_.description().third.height : 0;
}

bool ThirdInterface::rectifiedThirdIntrinsics(KXCalibIntrinsicsRectified* out) {
    if (!state_.enterCalibration("rectifiedThirdIntrinsics")) return false;
    *out = inConvention(rectifiedIntrinsics(state_.description().third), state_.settings.faults);
    return true;
}

bool ThirdInterface::zToThirdExtrinsics(KXCalibExtrinsics* out) {
    if (!state_.enterCalibration("zToThirdExtrinsics")) return false;
    *out = inConvention(thirdExtrinsics(state_.activeBlock, state_.description()), state_.settings.faults);
    return true;
}

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
    *out = inConvention(rawIntrinsics(state_.description().platform->raw), state_.settings.faults);
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
    *out = inConvention(platformExtrinsics(state_.activeBlock, state_.description()), state_.settings.faults);
    return true;
}

}  // namespace kxsim
