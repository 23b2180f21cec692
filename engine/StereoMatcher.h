#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Disparities of single places of the left infrared image, found along the rows of the right one.
///
/// A disparity is the column in the left image minus the column in the right one, in pixels: focal length times stereo
/// baseline over depth, about zero for what is far away. NaN where it cannot be told: too close to the border, without
/// texture, hidden from the right imager, or alike in several places of the row. The images are rectified; rows may be
/// up to a pixel apart. Keeps references to nothing. Read-only after construction, any thread.
class StereoMatcher {
public:
    /// Both images CV_16UC1 of one size, 0..1023.
    StereoMatcher(const cv::Mat& left16, const cv::Mat& right16);

    /// Disparities to about a pixel, by correlation in images of half the size over the whole range. A place counts
    /// when the search back from the right image leads to it again and no other place of the row correlates nearly as
    /// well.
    std::vector<float> findCoarse(const std::vector<cv::Point2f>& leftPoints) const;

    /// Sub-pixel disparities near the given coarse ones: correlation of 13 x 13 windows in the full images, then a
    /// Gauss-Newton alignment with gain and offset (Lucas and Kanade, IJCAI 1981). Uses a second thread.
    std::vector<float> refine(const std::vector<cv::Point2f>& leftPoints,
                              const std::vector<float>& coarseDisparitiesPx) const;

    /// Rows between the same places and where the right image shows them, positive where it shows them lower.
    std::vector<float> refineRows(const std::vector<cv::Point2f>& leftPoints,
                                  const std::vector<float>& coarseDisparitiesPx) const;

    /// Disparities from a little below zero to things at 0.6 m before an imager pair of 55 mm and 580 px.
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
