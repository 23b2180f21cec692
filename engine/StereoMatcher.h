#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Measures disparities of single places of the left infrared image along the rows of the right one.
///
/// A disparity is the column in the left image minus the column in the right one, in pixels: focal length times stereo
/// baseline over depth, about zero for far objects. It is NaN where it cannot be measured: too close to the border,
/// without texture, hidden from the right imager, or ambiguous along the row. The images are rectified; rows may differ
/// by up to a pixel. The images are not referenced after construction. Read-only after construction, any thread.
class StereoMatcher {
public:
    /// Both images are CV_16UC1 and of one size, 0..1023.
    StereoMatcher(const cv::Mat& left16, const cv::Mat& right16);

    /// Returns disparities to about a pixel, by correlation over the whole range in images of half the size. A result
    /// is accepted when the search back from the right image returns to the same place and no other position of the row
    /// correlates nearly as well.
    std::vector<float> findCoarse(const std::vector<cv::Point2f>& leftPoints) const;

    /// Returns sub-pixel disparities near the given coarse ones: correlation of 13 x 13 windows in the full images,
    /// then a Gauss-Newton alignment with gain and offset (Lucas and Kanade, IJCAI 1981). Uses a second thread
    /// internally.
    std::vector<float> refine(const std::vector<cv::Point2f>& leftPoints,
                              const std::vector<float>& coarseDisparitiesPx) const;

    /// Returns the rows between each place and its position in the right image, positive where that is lower.
    std::vector<float> refineRows(const std::vector<cv::Point2f>& leftPoints,
                                  const std::vector<float>& coarseDisparitiesPx) const;

    /// The search range: from a little below zero up to objects at 0.6 m for a baseline of 55 mm and a focal length of
    /// 580 px.
    static constexpr float kLargestDisparityPx = 54.0F;

private:
    float findCoarseAt(const cv::Point2f& leftPoint) const;
    std::vector<cv::Point2f> refineWays(const std::vector<cv::Point2f>& leftPoints,
                                        const std::vector<float>& coarseDisparitiesPx) const;
    cv::Point2f refineWayAt(const cv::Point2f& leftPoint, float coarsePx) const;

    cv::Mat left_, right_;          ///< CV_32FC1
    cv::Mat leftHalf_, rightHalf_;  ///< CV_32FC1, half the size, padded on the left and right
};

}  // namespace vq
