#pragma once

#include "kxapi/KXAPI.h"

#include <cstring>

/// What the simulated module keeps in the reserved bytes of its parameter block: for each colour camera the rotation
/// from the depth camera's raw frame to the camera's raw frame (nine doubles, row-major) and the translation from the
/// depth camera to the camera's rectified frame (three doubles, millimetres), where the camera's offset says.
/// All other reserved bytes hold a pattern that nobody but their owner may change.
namespace kxsim {

constexpr std::size_t kThirdOffset = 256;
constexpr std::size_t kPlatformOffset = 512;
constexpr std::size_t kRotationBytes = 9 * sizeof(double);
constexpr std::size_t kTranslationBytes = 3 * sizeof(double);
static_assert(kThirdOffset % alignof(double) == 0 && kPlatformOffset % alignof(double) == 0);
static_assert(kThirdOffset + kRotationBytes + kTranslationBytes <= kPlatformOffset);
static_assert(kPlatformOffset + kRotationBytes + kTranslationBytes <= sizeof(KXCalibRectParameters::reserved0));

inline void storeRotation(KXCalibRectParameters* block, std::size_t camera, const double* rotation) {
    std::memcpy(block->reserved0 + camera, rotation, kRotationBytes);
}

inline void loadRotation(const KXCalibRectParameters& block, std::size_t camera, double* rotation) {
    std::memcpy(rotation, block.reserved0 + camera, kRotationBytes);
}

inline void storeTranslation(KXCalibRectParameters* block, std::size_t camera, const double* translation) {
    std::memcpy(block->reserved0 + camera + kRotationBytes, translation, kTranslationBytes);
}

inline void loadTranslation(const KXCalibRectParameters& block, std::size_t camera, double* translation) {
    std::memcpy(translation, block.reserved0 + camera + kRotationBytes, kTranslationBytes);
}

}  // namespace kxsim
