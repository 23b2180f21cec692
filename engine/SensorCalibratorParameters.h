#pragma once

#include <cstdint>
#include <string>

namespace vq {

/// How 16-bit infrared is converted to 8 bits.
enum InfraredConversionMode : std::int32_t {
    LinearConversion = 0,      ///< 0..1023 onto 0..255
    HistogramStretch = 1,      ///< clipped, locally normalised stretch
    SquareRootConversion = 2,  ///< the square root of the value, which gives equal steps for equal shot noise
    ClampConversion = 3,       ///< values are kept, 255 and above become 255
};

/// The engine's tuning parameters. Reserved fields are not used and keep the order of the record.
struct SensorCalibratorParameters {
    bool reserved1 = false;
    bool reserved2 = false;
    bool reserved3 = true;
    bool reserved4 = true;
    std::int32_t reserved5 = 1;
    std::int32_t infraredConversionMode = HistogramStretch;
    std::int32_t gridColumns = 4;
    std::int32_t gridRows = 3;
    std::int32_t minimumAttempts = 3;  ///< stability decisions before a solution can be good
    float cellFillFraction = 0.5F;     ///< share of cells that may be under-filled when an estimation is tried
    float reserved11 = 0.75F;
    float reserved12 = 0.5F;
    std::int32_t supportCount = 7;  ///< matches drawn per cell and round, and votes needed for a solution
    std::int32_t cellMinimum = 10;  ///< a cell with fewer correspondences is under-filled
    std::int32_t reserved15 = 8;
    std::int32_t workingCount = 30;
    float angleSearchStep = 0.15F;  ///< degrees
    std::int32_t reserved18 = 5;

    /// Returns whether every field is usable. If not, `why` receives the reason; otherwise it is unchanged.
    bool isValid(std::string* why) const;
};

}  // namespace vq
