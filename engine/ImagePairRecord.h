#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vq {

/// The engine's own copy of a selected image. The buffer is reallocated only when the size changes.
struct ImagePairRecord {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> pixels;  ///< packed; 2 bytes per pixel for infrared and depth, 4 for colour

    void assign(std::uint32_t newWidth, std::uint32_t newHeight, const std::uint8_t* source,
                std::uint32_t bytesPerPixel) {
        if (newWidth != width || newHeight != height) {
            width = newWidth;
            height = newHeight;
            pixels.resize(static_cast<std::size_t>(width) * height * bytesPerPixel);
        }
        pixels.assign(source, source + pixels.size());
    }
    const std::uint16_t* pixels16() const { return reinterpret_cast<const std::uint16_t*>(pixels.data()); }
};

}  // namespace vq
