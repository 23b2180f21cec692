#pragma once

#include <cstdint>

namespace fieldcal::session {

/// Converts BGRA to NV12: BT.601, limited range (luma 16..235, chroma 16..240), rounded to nearest. `bgra`: packed
/// rows, alpha ignored. `nv12`: width x height luma bytes, then half as many of interleaved U and V, each the mean of 2
/// x 2 pixels. `width` and `height` must be even and positive. Any thread.
void nv12FromBgra(const std::uint8_t* bgra, int width, int height, std::uint8_t* nv12);

/// Converts NV12 to BGRA: each chroma pair is used for its 2 x 2 pixels; alpha is 255.
void bgraFromNv12(const std::uint8_t* nv12, int width, int height, std::uint8_t* bgra);

}  // namespace fieldcal::session
