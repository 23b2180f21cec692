#pragma once

#include "camera/ImageFrame.h"

#include <opencv2/core.hpp>

#include <algorithm>

namespace vq::testing {

/// From CV_16UC1.
inline fieldcal::ImageFrame16 infraredFrame(const cv::Mat& image) {
    fieldcal::ImageFrame16 frame;
    frame.assign(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows), image.data);
    return frame;
}

/// From CV_8UC4.
inline fieldcal::ImageFrame32 colourFrame(const cv::Mat& image) {
    fieldcal::ImageFrame32 frame;
    frame.assign(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows), image.data);
    return frame;
}

/// Opaque pixels of one grey level.
inline cv::Mat greyColour(const cv::Size& size, int level) {
    return {size, CV_8UC4, cv::Scalar(level, level, level, 255)};
}

/// Every value a random number in low..high.
inline cv::Mat randomImage(cv::RNG& random, const cv::Size& size, int type, int low, int high) {
    cv::Mat image(size, type);
    random.fill(image, cv::RNG::UNIFORM, low, high + 1);
    return image;
}

}  // namespace vq::testing
