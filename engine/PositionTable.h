#pragma once

#include "engine/CameraPair.h"
#include "engine/SearchRange.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <array>
#include <optional>
#include <vector>

namespace vq {

/// For every place of the query picture, the area of the target picture in which it can appear.
///
/// The table has one entry for each 4 x 4 pixels of the query picture. An entry holds four points that run around the
/// perimeter of a rectangle; every pixel of the entry's area lands inside for every rotation of the search range.
/// Built once a set-up, read by the matcher. Positions are pixels of the delivered pictures.
class PositionTable {
public:
    using Quadrilateral = std::array<cv::Point2f, 4>;

    PositionTable() = default;
    /// `queryIsInfrared`: the infrared picture is the query and the colour picture the target, or the other way round.
    PositionTable(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad, const SearchRange& range,
                  bool queryIsInfrared);

    int width() const { return width_; }
    int height() const { return height_; }
    bool queryIsInfrared() const { return queryIsInfrared_; }

    /// Null for a position outside the table.
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
