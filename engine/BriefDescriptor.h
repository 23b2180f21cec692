#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Bit-string descriptor of 32 bytes: 256 comparisons of box-smoothed intensities in a 48 x 48 patch.
/// Calonder, Lepetit, Strecha, Fua: BRIEF, Binary Robust Independent Elementary Features, ECCV 2010.
///
/// `image`: CV_8UC1. Corners nearer than 28 pixels to the border have no complete patch and are removed from `corners`.
/// `descriptors`: CV_8UC1, one row of 32 bytes for each remaining corner. Any thread.
void describeCorners(const cv::Mat& image, std::vector<cv::Point2f>* corners, cv::Mat* descriptors);

constexpr int kDescriptorBytes = 32;

}  // namespace vq
