#pragma once

#include "kxapi/KXAPI.h"
#include "tests/adapter/DifferentCamera.h"

#include <array>
#include <cstring>

/// The parameter block of `DifferentCamera`, twice as large as that of `KXAPI.h`, and its known part. The rest is
/// written back as it was read.
class ExampleBlock {
public:
    std::uint8_t* bytes() { return large_.data(); }

    KXCalibRectParameters small() const {
        KXCalibRectParameters block{};
        auto* out = reinterpret_cast<std::uint8_t*>(&block);
        std::memcpy(out, large_.data() + DC_BLOCK_FIRST_HALF, DC_BLOCK_HALF);
        std::memcpy(out + DC_BLOCK_HALF, large_.data() + DC_BLOCK_SECOND_HALF, DC_BLOCK_HALF);
        return block;
    }
    void takeSmall(const KXCalibRectParameters& block) {
        const auto* in = reinterpret_cast<const std::uint8_t*>(&block);
        std::memcpy(large_.data() + DC_BLOCK_FIRST_HALF, in, DC_BLOCK_HALF);
        std::memcpy(large_.data() + DC_BLOCK_SECOND_HALF, in + DC_BLOCK_HALF, DC_BLOCK_HALF);
    }

private:
    std::array<std::uint8_t, DC_BLOCK_SIZE> large_{};
};
static_assert(2 * DC_BLOCK_HALF == sizeof(KXCalibRectParameters));
