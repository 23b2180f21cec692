#pragma once

#include "kxapi/KXAPI.h"

#include <array>
#include <string>
#include <vector>

namespace kxsim {

/// How an operation on the flash went. `why`: one line for people; empty where the status says it all.
struct [[nodiscard]] FlashResult {
    std::int32_t status = KX_STATUS_OK;
    std::string why;
    bool ok() const { return why.empty() && status == KX_STATUS_OK; }
};

/// The bytes of the flash, numbers in little-endian order:
///   identity: "KXSIMFLS", version (u32), serial number (u32), CRC-32 of those 16 bytes (u32);
///   bank A, bank B: "KXBK", sequence (u32), length of the block (u32), CRC-32 of sequence and block (u32), block.
/// An erased cell reads 0xFF. The bank with the higher sequence is valid, of those that are whole.
constexpr std::size_t kIdentityBytes = 20;
constexpr std::size_t kBankHeaderBytes = 16;
constexpr std::size_t kBlockBytes = sizeof(KXCalibRectParameters);
constexpr std::size_t kBankBytes = kBankHeaderBytes + kBlockBytes;
constexpr std::size_t kImageBytes = kIdentityBytes + 2 * kBankBytes;
/// Sequences count from 1. The last one is far from what erased or half-programmed cells read.
constexpr std::uint32_t kLastSequence = 0x7FFFFFFF;

using FlashBytes = std::vector<std::uint8_t>;

constexpr std::size_t bankOffset(std::size_t bank) {
    return kIdentityBytes + bank * kBankBytes;
}

/// A new module's flash: the block in bank A, bank B erased.
FlashBytes newImage(std::uint32_t serial, const KXCalibRectParameters& block);

FlashBytes bankHeader(std::uint32_t sequence, const KXCalibRectParameters& block);

struct ValidBank {
    std::size_t bank = 0;  ///< 0: A, 1: B
    std::uint32_t sequence = 0;
    KXCalibRectParameters block{};
};

/// Status 6 when the bytes are not the flash of that module, 4 when no bank is whole. What a block says is not judged.
FlashResult findValidBank(const FlashBytes& image, std::uint32_t serial, ValidBank* out);

}  // namespace kxsim
