#include "kxapi/KXAPI.h"
#include "kxapi/RearCameraSeam.h"
#include "simulator/kxapi/RearCamera.h"
#include "simulator/kxapi/Rectification.h"
#include "simulator/kxapi/SimulatedDevice.h"

#include <iterator>

#if defined(_WIN32)
#define KXSIM_EXPORT extern "C" __declspec(dllexport)
#else
#define KXSIM_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

constexpr const char* kStatusTexts[] = {"No error",           "Operation failed",    "Invalid argument",
                                        "Not supported",      "Not calibrated",      "No device",
                                        "Device error",       "Device in use",       "Timeout",
                                        "Data not available", "Communication error", "Firmware too old",
                                        "Out of memory"};

}  // namespace

KXSIM_EXPORT std::int32_t KXInterfaceVersion() {
    return KX_INTERFACE_VERSION;
}

KXSIM_EXPORT KXDevice* KXCreate(std::int32_t /*platform*/) {
    return new kxsim::SimulatedDevice(kxsim::readSettings());
}

KXSIM_EXPORT void KXDestroy(KXDevice* device) {
    auto* simulated = static_cast<kxsim::SimulatedDevice*>(device);
    if (simulated != nullptr) simulated->close();
    delete simulated;
}

KXSIM_EXPORT const char* KXStatusString(std::int32_t status) {
    const bool known = status >= 0 && status < static_cast<std::int32_t>(std::size(kStatusTexts));
    return known ? kStatusTexts[status] : "Unknown status";
}

KXSIM_EXPORT void KXRectificationTable(const KXCalibIntrinsicsNonRectified* raw, const double* rotation,
                                       const KXCalibIntrinsicsRectified* rectified, std::uint32_t* table) {
    kxsim::fillRectificationTable(*raw, rotation, *rectified, table);
}

KXSIM_EXPORT void KXRectifyBGRA8ToBGRA8(const std::uint32_t* table, const std::uint8_t* source,
                                        std::int32_t pitchPixels, std::int32_t width, std::int32_t height,
                                        std::uint8_t* destination) {
    kxsim::rectify(table, source, pitchPixels, width, height, destination);
}

KXSIM_EXPORT RearCameraSource* KXSimRearCamera() {
    kxsim::RearCamera& camera = kxsim::RearCamera::instance();
    return camera.plugIn() ? &camera : nullptr;
}
