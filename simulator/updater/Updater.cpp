#include "simulator/kxapi/BlockLayout.h"

#include <cstdlib>

#if defined(_WIN32)
#define KXSIM_EXPORT extern "C" __declspec(dllexport)
#else
#define KXSIM_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

bool changesReservedBytes() {
    const char* faults = std::getenv("KXSIM_FAULTS");
    return faults != nullptr && std::strstr(faults, "meddling-companion") != nullptr;
}

void update(const KXCalibRectParameters* in, const double* rotation, std::size_t camera, KXCalibRectParameters* out) {
    KXCalibRectParameters block = *in;
    kxsim::storeRotation(&block, camera, rotation);
    if (changesReservedBytes()) ++block.reserved2[5];
    *out = block;
}

}  // namespace

KXSIM_EXPORT void KXUpdateThirdCameraRotation(const KXCalibRectParameters* in, const double* rotation,
                                              KXCalibRectParameters* out) {
    update(in, rotation, kxsim::kThirdOffset, out);
}

KXSIM_EXPORT void KXUpdatePlatformCameraRotation(const KXCalibRectParameters* in, const double* rotation,
                                                 KXCalibRectParameters* out) {
    update(in, rotation, kxsim::kPlatformOffset, out);
}
