#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Corners of an image with their descriptors.
struct CornerSet {
    std::vector<cv::Point2f> points;
    cv::Mat descriptors;  ///< one row per point
    int detected = 0;     ///< number of corners before those without a complete patch were removed
    double detectionSeconds = 0;
    double descriptionSeconds = 0;
};

/// Good features to track (Shi and Tomasi, CVPR 1994), refined to sub-pixel positions and described. Any thread.
CornerSet findCorners(const cv::Mat& image, int maximumCount);

}  // namespace vq
