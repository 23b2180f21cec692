#pragma once

#include <opencv2/core.hpp>

namespace vq {

/// Converts four bytes per pixel (CV_8UC4) to grey with the weights 0.299, 0.587, 0.114 on the first three bytes in
/// storage order, rounded. A pixel whose fourth byte is 0 becomes black. `grey` is reallocated only when the size
/// changes. Any thread.
void convertToGrey(const cv::Mat& colour, cv::Mat* grey);

}  // namespace vq
