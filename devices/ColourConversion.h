#pragma once

#include "camera/ImageFrame.h"

#include <opencv2/core.hpp>

#include <cstdint>

namespace fieldcal {

/// Largest accepted side of images and records; the smallest is 1.
inline constexpr std::int32_t kLargestImageSide = 8192;

bool isPlausibleImageSize(std::int32_t width, std::int32_t height);

/// Converts a BGRA image into a record: scales it to width x height (bilinear, as `cv::resize`; no scaling if it has
/// that size already), swaps red and blue, and sets alpha to 255. `scaled` is a work buffer that the caller keeps from
/// call to call. `bgra` must not be empty and the size must be plausible.
void scaleIntoRecord(const cv::Mat& bgra, std::int32_t width, std::int32_t height, cv::Mat* scaled,
                     ImageFrame32* record);

/// Converts NV12 pixels, width x height with even sides, to BGRA.
void nv12ToBgra(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, cv::Mat* bgra);

}  // namespace fieldcal
