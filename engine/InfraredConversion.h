#pragma once

#include <opencv2/core.hpp>

#include <cstdint>

namespace vq {

/// Grey levels between which all but the darkest and the brightest 2 % of the pixels lie, and what follows from them.
struct ClippedStatistics {
    int lowCut = 0;
    int highCut = 1023;
    double mean = 0;  ///< of all pixels clamped into lowCut..highCut
};

/// `pixels`: row-major, `count` values; values above 1023 count as bright but have no bin of their own.
ClippedStatistics clippedStatistics(const std::uint16_t* pixels, std::size_t count);

/// Brightness of a raw infrared image: the clipped mean, truncated. No pixels: 0. Any thread.
std::uint16_t clippedMean(const std::uint16_t* pixels, int width, int height);

/// 16-bit infrared (CV_16UC1, 0..1023) to 8 bits in one of the modes of `InfraredConversionMode`. Any thread.
/// Mode 1 clips the 2 % tails and stretches each pixel over ±3 standard deviations about the mean of its 256 x 256
/// neighbourhood; a flat neighbourhood gives 0 or 255.
void convertInfrared(const cv::Mat& infrared16, int mode, cv::Mat* infrared8);

}  // namespace vq
