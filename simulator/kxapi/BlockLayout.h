#pragma once

#include "kxapi/KXAPI.h"

#include <cstring>
#include <numeric>

/// Layout of the reserved bytes in the simulated module's parameter block. For each colour camera, at the camera's
/// offset: the rotation from the depth camera's raw frame to the camera's raw frame (nine doubles, row-major) and the
/// translation from the depth camera to the camera's rectified frame (three doubles, millimetres). All other reserved
/// bytes hold a pattern that only their owner may change. A module with a living block (`living-block` in the README)
/// counts its commits in the last reserved bytes and keeps a checksum of all others there.
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

/// Flips one bit of one byte.
inline void garble(KXCalibRectParameters* block, std::size_t byte) {
    reinterpret_cast<std::uint8_t*>(block)[byte % sizeof(*block)] ^= 0x40U;
}

/// Enters the commit count and the checksum of a module with a living block into `block`, which replaces `present`.
inline void updateLivingBytes(const KXCalibRectParameters& present, KXCalibRectParameters* block) {
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
