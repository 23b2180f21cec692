#pragma once

#include "camera/ImageFrame.h"

#include <opencv2/core.hpp>

#include <cstdint>

namespace fieldcal {

/// Sides of pictures and records lie between 1 and this.
inline constexpr std::int32_t kLargestPictureSide = 8192;

bool isPlausiblePictureSize(std::int32_t width, std::int32_t height);

/// Brings a BGRA picture into a record: scaled to width x height (bilinear, as `cv::resize`; not at all when it has
/// that size already), red and blue swapped, alpha 255. `scaled` is working memory to be kept from call to call.
/// `bgra` is not empty and the size is plausible.
void scaleIntoRecord(const cv::Mat& bgra, std::int32_t width, std::int32_t height, cv::Mat* scaled,
                     ImageFrame32* record);

/// NV12 pixels, width x height, to BGRA. Even sides.
void nv12ToBgra(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, cv::Mat* bgra);

}  // namespace fieldcal
