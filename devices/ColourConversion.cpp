#include "devices/ColourConversion.h"

#include <opencv2/imgproc.hpp>

#include <cstddef>
#include <cstring>

namespace fieldcal {
namespace {

std::uint32_t swappedOpaque(std::uint32_t bgra) {
    return 0xFF000000U | (bgra & 0x0000FF00U) | ((bgra >> 16) & 0xFFU) | ((bgra & 0xFFU) << 16);
}

/// One pass replaces a swap, a copy and a pass for alpha. Blocks of fixed length allow the compiler to vectorise.
void swapIntoRecord(const std::uint8_t* bgra, std::size_t pixels, std::uint8_t* rgba) {
    constexpr std::size_t kBlock = 16;
    std::uint32_t block[kBlock];
    std::size_t done = 0;
    for (; done + kBlock <= pixels; done += kBlock) {
        std::memcpy(block, bgra + done * 4, sizeof block);
        for (std::uint32_t& pixel : block)
            pixel = swappedOpaque(pixel);
        std::memcpy(rgba + done * 4, block, sizeof block);
    }
    for (; done < pixels; ++done) {
        std::memcpy(block, bgra + done * 4, 4);
        block[0] = swappedOpaque(block[0]);
        std::memcpy(rgba + done * 4, block, 4);
    }
}

}  // namespace

bool isPlausibleImageSize(std::int32_t width, std::int32_t height) {
    return width >= 1 && height >= 1 && width <= kLargestImageSide && height <= kLargestImageSide;
}

void scaleIntoRecord(const cv::Mat& bgra, std::int32_t width, std::int32_t height, cv::Mat* scaled,
                     ImageFrame32* record) {
    const bool fits = bgra.cols == width && bgra.rows == height;
    if (!fits) cv::resize(bgra, *scaled, cv::Size(width, height), 0, 0, cv::INTER_LINEAR);
    const cv::Mat& source = fits ? bgra : *scaled;
    record->resize(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    swapIntoRecord(source.ptr(), source.total(), record->bytes());
}

void nv12ToBgra(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, cv::Mat* bgra) {
    const cv::Mat view(height * 3 / 2, width, CV_8UC1, const_cast<std::uint8_t*>(nv12));
    cv::cvtColor(view, *bgra, cv::COLOR_YUV2BGRA_NV12);
}

}  // namespace fieldcal
