#include "simulator/kxapi/Operations.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace kxsim {
namespace {

constexpr std::string_view kActing[] = {"openDevice", "initDevice", "setDepthStreamMode", "setDepthEnabled",
                                        "setLeftEnabled", "setRightEnabled", "setStreamOption", "startCapture",
                                        "stopCapture", "grab", "resumeDevice",
                                        // hardware control
                                        "setAutoExposure", "setGain", "setExposure", "setHardwareOption",
                                        // third camera
                                        "setThirdStreamMode", "setThirdEnabled",
                                        // emitter
                                        "setEmitter",
                                        // platform camera
                                        "setPlatformMode",
                                        // private interface
                                        "writeRectParameters", "commitCalibration",
                                        // rear camera
                                        "openCamera", "setAutoFocus", "setFocus", "setupStream", "setSink",
                                        // the end
                                        "destroyDevice"};

constexpr std::string_view kAnswering[] = {
    "firmwareVersionText", "softwareVersionText", "serialNumber", "hardwareControl", "thirdCamera", "emitterControl",
    "depthEnabled", "leftEnabled", "rightEnabled", "depthImage", "leftImage", "rightImage", "depthWidth", "depthHeight",
    "lrWidth", "lrHeight", "calibrationValid", "rectifiedLRIntrinsics", "zIntrinsics", "rectParameters",
    "platformCamera", "privateInterface",
    // third camera
    "thirdEnabled", "thirdImage", "thirdWidth", "thirdHeight", "rectifiedThirdIntrinsics", "zToThirdExtrinsics",
    // platform camera
    "nonRectifiedIntrinsics", "rectifiedIntrinsics", "rectificationRotation", "zToPlatformExtrinsics"};

template <typename Names>
bool contains(const Names& names, const std::string& name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

}  // namespace

std::optional<OperationKind> operationKind(const std::string& name) {
    if (contains(kActing, name)) return OperationKind::acts;
    if (contains(kAnswering, name)) return OperationKind::answers;
    return std::nullopt;
}

}  // namespace kxsim
