#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace fieldcal::session {

inline constexpr int kPngGrey = 0;
inline constexpr int kPngRgb = 2;
inline constexpr int kPngRgba = 6;

/// The picture header of a PNG file.
struct PngHeader {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int bitDepth = 0;
    int colourType = 0;
};

/// Walks the chunks of a PNG file from the signature to IEND and checks their lengths and checksums, so that a file
/// that was cut or damaged is known as such before a decoder sees it. On failure false and the reason.
bool readPngStructure(const std::uint8_t* bytes, std::size_t size, PngHeader* out, std::string* reason);

}  // namespace fieldcal::session
