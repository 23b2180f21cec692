#pragma once

#include <QByteArray>

#include <cstdint>

namespace fieldcal::testing {

/// The checksum of PNG and of the simulated flash, bit by bit.
inline std::uint32_t crc32(const QByteArray& bytes) {
    std::uint32_t value = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        value ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ ((value & 1) != 0 ? 0xEDB88320U : 0);
    }
    return ~value;
}

}  // namespace fieldcal::testing
