#include "devices/RearCameraSeam.h"
#include "kxapi/KXAPI.h"
#include "simulator/kxapi/RearCamera.h"
#include "simulator/kxapi/Rectification.h"
#include "simulator/kxapi/SimulatedDevice.h"
#include "simulator/kxapi/StatusText.h"

#if defined(_WIN32)
#define KXSIM_EXPORT extern "C" __declspec(dllexport)
#else
#define KXSIM_EXPORT extern "C" __attribute__((visibility("default")))
#endif

KXSIM_EXPORT std::int32_t KXInterfaceVersion() {
    return KX_INTERFACE_VERSION;
}

KXSIM_EXPORT KXDevice* KXCreate(std::int32_t /*platform*/) {
    return new kxsim::SimulatedDevice(kxsim::readSettings());
}

KXSIM_EXPORT void KXDestroy(KXDevice* device) {
    delete static_cast<kxsim::SimulatedDevice*>(device);
}

KXSIM_EXPORT const char* KXStatusString(std::int32_t status) {
    return kxsim::statusText(status);
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
