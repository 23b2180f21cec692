#include "camera/ImageFrame.h"

#include <cstring>

namespace fieldcal {

void ImageFrame::resize(std::uint32_t width, std::uint32_t height) {
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    buffer_.resize(static_cast<std::size_t>(width) * height * bytesPerPixel_);
}

void ImageFrame::assign(std::uint32_t width, std::uint32_t height, const void* source) {
    resize(width, height);
    if (!buffer_.empty()) std::memcpy(buffer_.data(), source, buffer_.size());
}

}  // namespace fieldcal
