#pragma once

#include <opencv2/core.hpp>

#include <cstdint>

namespace vq {

/// The grey levels that enclose the pixels remaining after clipping the darkest and the brightest 2 %, and the
/// statistics of the clipped image.
struct ClippedStatistics {
    int lowCut = 0;
    int highCut = 1023;
    double mean = 0;  ///< of all pixels clamped to lowCut..highCut
};

/// `pixels`: row-major, `count` values. Values above 1023 count as bright but have no bin of their own.
ClippedStatistics clippedStatistics(const std::uint16_t* pixels, std::size_t count);

/// Returns the brightness of a raw infrared image: the clipped mean, truncated; 0 for an empty image. Any thread.
std::uint16_t clippedMean(const std::uint16_t* pixels, int width, int height);

/// Converts 16-bit infrared (CV_16UC1, 0..1023) to 8 bits in one of the modes of `InfraredConversionMode`. Mode 1 clips
/// the 2 % tails and stretches each pixel over ±3 standard deviations about the mean of its 256 x 256 neighbourhood; a
/// uniform neighbourhood gives 0 or 255. Any thread.
void convertInfrared(const cv::Mat& infrared16, int mode, cv::Mat* infrared8);

}  // namespace vq
