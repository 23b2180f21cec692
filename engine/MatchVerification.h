#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Checks matches by zero-mean normalised cross-correlation of 9 x 9 patches over offsets of -7..7 pixels, moves each
/// infrared point to the best-correlating position (one Newton step on the integer costs) and removes the pair when
/// that position lies on the edge of the search area or more than 2 pixels from the corner.
///
/// Both images CV_8UC1. Both lists have the same length and are replaced by the kept pairs in their order. Any thread;
/// uses a second thread internally.
///
/// The moved infrared points contain a quantisation error of whole-pixel patches and integer costs of about 0.4 px
/// along each axis. `exactInfraredPoints` (may be null) receives, for each kept pair, the infrared position without
/// that error.
void verifyMatches(const cv::Mat& colour, const cv::Mat& infrared, std::vector<cv::Point2f>* colourPoints,
                   std::vector<cv::Point2f>* infraredPoints, std::vector<cv::Point2f>* exactInfraredPoints = nullptr);

}  // namespace vq
