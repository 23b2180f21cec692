#pragma once

#include "engine/RotationPolish.h"

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Returns the nodes of a regular lattice in the infrared image that have enough texture to align a patch. Any thread.
std::vector<cv::Point2f> texturedPlaces(const cv::Mat& infrared8);

/// Aligns the 15 x 15 patch about each place of the infrared image directly with the colour image, with gain and offset
/// (Lucas and Kanade, IJCAI 1981; inverse compositional after Baker and Matthews, IJCV 2004). The start position
/// follows from `rotation` and the distance of the place. A patch that ends more than three pixels from there, or that
/// correlates too weakly, gives no match. The information of a match is computed from its gradients and its remaining
/// intensity differences.
///
/// Both images CV_8UC1; `grey` is the delivered colour image. `scale` may be null. Places of unknown distance are
/// skipped with `skipUnknown`, and count as infinitely far otherwise. Uses a second thread internally.
std::vector<MeasuredMatch> alignPatches(const cv::Mat& infrared8, const cv::Mat& grey,
                                        const std::vector<MeasuredPlace>& places, const Projection& projection,
                                        const Eigen::Matrix3d& rotation, const StereoScale* scale, bool skipUnknown);

}  // namespace vq
