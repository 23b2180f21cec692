#include "simulator/kxapi/FlashImage.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace kxsim {
namespace {

constexpr char kIdentityMagic[] = "KXSIMFLS";
constexpr char kBankMagic[] = "KXBK";
constexpr std::uint32_t kVersion = 1;

/// CRC-32 as in Ethernet and PNG.
std::uint32_t crc32(const FlashBytes& bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

void append(FlashBytes* out, std::uint32_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8)
        out->push_back(static_cast<std::uint8_t>(number >> shift));
}

std::uint32_t number(const FlashBytes& bytes, std::size_t at) {
    std::uint32_t out = 0;
    for (std::size_t i = 0; i < 4; ++i)
        out |= static_cast<std::uint32_t>(bytes[at + i]) << (8 * i);
    return out;
}

FlashBytes slice(const FlashBytes& bytes, std::size_t at, std::size_t count) {
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
    return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

FlashBytes blockBytes(const KXCalibRectParameters& block) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(&block);
    return {bytes, bytes + kBlockBytes};
}

std::uint32_t bankChecksum(std::uint32_t sequence, const FlashBytes& block) {
    FlashBytes covered;
    append(&covered, sequence);
    covered.insert(covered.end(), block.begin(), block.end());
    return crc32(covered);
}

FlashBytes identity(std::uint32_t serial) {
    FlashBytes out(kIdentityMagic, kIdentityMagic + 8);
    append(&out, kVersion);
    append(&out, serial);
    append(&out, crc32(out));
    return out;
}

const char* identityFault(const FlashBytes& image, std::uint32_t serial) {
    if (image.size() != kImageBytes) return "not the size of a module's flash";
    if (std::memcmp(image.data(), kIdentityMagic, 8) != 0) return "not a module's flash";
    if (number(image, 16) != crc32(slice(image, 0, 16))) return "the identity's checksum is wrong";
    if (number(image, 8) != kVersion) return "unknown version of the flash";
    if (number(image, 12) != serial) return "the flash of another module";
    return nullptr;
}

/// The bank's sequence, when it is whole.
std::optional<std::uint32_t> wholeSequence(const FlashBytes& image, std::size_t bank) {
    const std::size_t at = bankOffset(bank);
    const std::uint32_t sequence = number(image, at + 4);
    const bool header = std::memcmp(image.data() + at, kBankMagic, 4) == 0 && sequence > 0 &&
                        sequence <= kLastSequence && number(image, at + 8) == kBlockBytes;
    if (!header) return std::nullopt;
    const FlashBytes block = slice(image, at + kBankHeaderBytes, kBlockBytes);
    if (number(image, at + 12) != bankChecksum(sequence, block)) return std::nullopt;
    return sequence;
}

}  // namespace

FlashBytes newImage(std::uint32_t serial, const KXCalibRectParameters& block) {
    FlashBytes out = identity(serial);
    const FlashBytes header = bankHeader(1, block);
    const FlashBytes body = blockBytes(block);
    out.insert(out.end(), header.begin(), header.end());
    out.insert(out.end(), body.begin(), body.end());
    out.resize(kImageBytes, 0xFF);
    return out;
}

FlashBytes bankHeader(std::uint32_t sequence, const KXCalibRectParameters& block) {
    FlashBytes out(kBankMagic, kBankMagic + 4);
    append(&out, sequence);
    append(&out, kBlockBytes);
    append(&out, bankChecksum(sequence, blockBytes(block)));
    return out;
}

FlashResult findValidBank(const FlashBytes& image, std::uint32_t serial, ValidBank* out) {
    if (const char* fault = identityFault(image, serial)) return {KX_STATUS_DEVICE_ERROR, fault};
    const std::optional<std::uint32_t> a = wholeSequence(image, 0);
    const std::optional<std::uint32_t> b = wholeSequence(image, 1);
    if (!a && !b) return {KX_STATUS_NOT_CALIBRATED, "neither bank is whole"};
    out->bank = b > a ? 1 : 0;
    out->sequence = *std::max(a, b);
    std::memcpy(&out->block, image.data() + bankOffset(out->bank) + kBankHeaderBytes, kBlockBytes);
    return {};
}

}  // namespace kxsim
