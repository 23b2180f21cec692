#pragma once

#include "engine/CameraPair.h"
#include "engine/SearchRange.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <array>
#include <optional>
#include <vector>

namespace vq {

/// Gives, for every position in the query image, the area of the target image in which it can appear.
///
/// The table has one entry for each 4 x 4 pixels of the query image. An entry holds four points along the perimeter of
/// a rectangle; every pixel of the entry's area is projected into that rectangle by every rotation of the search range.
/// The table is built once per setup and read by the matcher. Positions are pixels of the delivered images.
class PositionTable {
public:
    using Quadrilateral = std::array<cv::Point2f, 4>;

    PositionTable() = default;
    /// `queryIsInfrared`: true when the infrared image is the query and the colour image the target, false the other
    /// way round.
    PositionTable(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad, const SearchRange& range,
                  bool queryIsInfrared);

    int width() const { return width_; }
    int height() const { return height_; }
    bool queryIsInfrared() const { return queryIsInfrared_; }

    /// Returns null for a position outside the table.
    const Quadrilateral* find(const cv::Point2f& queryPoint) const;

private:
    int width_ = 0;
    int height_ = 0;
    float scaleX_ = 0;
    float scaleY_ = 0;
    bool queryIsInfrared_ = true;
    std::vector<Quadrilateral> entries_;
};

}  // namespace vq
