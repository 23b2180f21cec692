#pragma once

#include "engine/RotationPolish.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <array>
#include <cstddef>
#include <vector>

namespace vq {

/// The areas of the infrared image in which matches are counted, row by row.
constexpr int kAreaColumns = 4;
constexpr int kAreaRows = 3;
constexpr std::size_t kAreaCount = static_cast<std::size_t>(kAreaColumns) * kAreaRows;
std::size_t areaOf(const cv::Point2f& point, const fieldcal::CameraModel& infrared);

/// A match to which a rotation was fitted.
struct EvidenceMatch {
    cv::Point2f infrared;
    cv::Point2f colour;      ///< pixels of the colour model
    float inverseDepth = 0;  ///< 1/m; 0 also where no distance is known
    int still = 0;           ///< index of its still
    /// Inverse covariance of the colour point, 1/px².
    Eigen::Matrix2d information = Eigen::Matrix2d::Identity();
};

/// The evidence for a solution, for display and reports. The two images are those of the still with the most matches: 8
/// bit, the infrared image and the grey colour image in the infrared geometry. They are shared, not copied.
struct SolutionEvidence {
    Projection projection;
    std::vector<EvidenceMatch> matches;
    std::vector<int> matchesPerStill;  ///< 0 when the still was left out
    int shownStill = 0;
    double cauchy = 0.3;  ///< where the loss of the fit bends, in deviations of a match
    cv::Mat infrared, grey;

    /// The residual of a match under a rotation, in pixels of the colour model.
    Eigen::Vector2d residualPx(const EvidenceMatch& match, const Eigen::Matrix3d& rotation) const;
    std::array<int, kAreaCount> matchesPerArea() const;
};

}  // namespace vq
