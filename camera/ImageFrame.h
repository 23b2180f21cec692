#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fieldcal {

/// Width, height and a packed row-major pixel buffer. A plain value; not synchronised.
class ImageFrame {
public:
    explicit ImageFrame(std::uint32_t bytesPerPixel) : bytesPerPixel_(bytesPerPixel) {}

    std::uint32_t width() const { return width_; }
    std::uint32_t height() const { return height_; }
    std::uint32_t bytesPerPixel() const { return bytesPerPixel_; }
    bool empty() const { return width_ == 0 || height_ == 0; }

    /// Leaves the frame as it is when the size is unchanged; otherwise the pixels are undefined afterwards.
    void resize(std::uint32_t width, std::uint32_t height);

    /// Replaces size and pixels. `source` points to width x height packed pixels.
    void assign(std::uint32_t width, std::uint32_t height, const void* source);

    std::uint8_t* bytes() { return buffer_.data(); }
    const std::uint8_t* bytes() const { return buffer_.data(); }
    std::size_t byteCount() const { return buffer_.size(); }

private:
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
    std::uint32_t bytesPerPixel_;
    std::vector<std::uint8_t> buffer_;
};

/// Infrared (0..1023) or depth (millimetres) pixels.
class ImageFrame16 : public ImageFrame {
public:
    ImageFrame16() : ImageFrame(2) {}
    const std::uint16_t* pixels() const { return reinterpret_cast<const std::uint16_t*>(bytes()); }
    std::uint16_t* pixels() { return reinterpret_cast<std::uint16_t*>(bytes()); }
};

/// Colour pixels, RGBA in storage order, alpha 255.
class ImageFrame32 : public ImageFrame {
public:
    ImageFrame32() : ImageFrame(4) {}
};

}  // namespace fieldcal
