#pragma once

#include "kxapi/KXAPI.h"

#include <cstring>
#include <numeric>

/// What the simulated module keeps in the reserved bytes of its parameter block: for each colour camera the rotation
/// from the depth camera's raw frame to the camera's raw frame (nine doubles, row-major) and the translation from the
/// depth camera to the camera's rectified frame (three doubles, millimetres), where the camera's offset says.
/// All other reserved bytes hold a pattern that nobody but their owner may change. A module whose block lives
/// (`living-block` in the README) counts its commits in the last reserved bytes and keeps a sum of all others there.
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

/// One bit of one byte wrong.
inline void garble(KXCalibRectParameters* block, std::size_t byte) {
    reinterpret_cast<std::uint8_t*>(block)[byte % sizeof(*block)] ^= 0x40U;
}

/// What a module with a living block enters into `block` as it replaces `present`.
inline void enterLife(const KXCalibRectParameters& present, KXCalibRectParameters* block) {
    constexpr std::size_t kCount = sizeof(block->reserved3) - 8;
    constexpr std::size_t kSum = sizeof(block->reserved3) - 4;
    std::uint32_t count = 0;
    std::memcpy(&count, present.reserved3 + kCount, sizeof(count));
    ++count;
    std::memcpy(block->reserved3 + kCount, &count, sizeof(count));
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(block);
    const std::uint32_t sum = std::accumulate(bytes, bytes + sizeof(*block) - 4, std::uint32_t{0});
    std::memcpy(block->reserved3 + kSum, &sum, sizeof(sum));
}

}  // namespace kxsim
