#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Checks matches by zero-mean normalised cross-correlation of 9 x 9 patches over offsets of -7..7 pixels, moves each
/// infrared point to the best-correlating position (one Newton step on the integer costs) and drops the pair when that
/// lies on the rim of the search area or more than 2 pixels from the corner.
///
/// Both images CV_8UC1; both lists equally long, replaced by the kept pairs in their order. Any thread; uses a
/// second one while it works.
///
/// The moved infrared points carry what whole-pixel patches and whole-number costs leave over: 0.4 px in each axis.
/// `exactInfraredPoints` (may be null) gets, for each kept pair, the infrared place without it.
void verifyMatches(const cv::Mat& colour, const cv::Mat& infrared, std::vector<cv::Point2f>* colourPoints,
                   std::vector<cv::Point2f>* infraredPoints, std::vector<cv::Point2f>* exactInfraredPoints = nullptr);

}  // namespace vq
