#pragma once

#include <cstdint>

namespace fieldcal::session {

/// BT.601, limited range (luma 16..235, chroma 16..240), rounded to nearest. `bgra`: packed rows, alpha ignored.
/// `nv12`: width x height luma bytes, then half as many of interleaved U and V, each the mean of 2 x 2 pixels.
/// `width` and `height` even and positive. Any thread.
void nv12FromBgra(const std::uint8_t* bgra, int width, int height, std::uint8_t* nv12);

/// The inverse, each chroma pair serving its 2 x 2 pixels; alpha 255.
void bgraFromNv12(const std::uint8_t* nv12, int width, int height, std::uint8_t* bgra);

}  // namespace fieldcal::session
