#pragma once

#include "engine/CameraPair.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// A rotation fitted to every verified match of an attempt.
struct PolishedRotation {
    Eigen::Vector3d anglesRad;
    Eigen::Vector3d deviationRad;  ///< one standard deviation of each angle, from the residuals' spread
};

/// Starting at the vote's winner, one robust fit over all matches of the attempt: the rounds see 84 of them at a time,
/// and what they leave unused halves the error (docs/estimation.md). Colour points in pixels of the colour model.
/// False when the fit fails, when too few matches support it, or when it leaves the winner by more than its rounds
/// scatter; the winner then stands. Any thread.
bool polishRotation(const std::vector<cv::Point2f>& infraredPoints, const std::vector<cv::Point2f>& colourPoints,
                    const CameraPair& cameras, const Eigen::Vector3d& winnerRad, PolishedRotation* out);

}  // namespace vq
