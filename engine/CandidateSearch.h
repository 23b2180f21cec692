#pragma once

#include "engine/CornerSet.h"

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Target corners sorted into buckets, so that only those inside a search rectangle are compared. Read-only after
/// construction; keeps a reference to the corners.
class CandidateSearch {
public:
    CandidateSearch(const CornerSet& targets, const cv::Size& targetSize);

    /// The target corner inside `area` whose descriptor is nearest by Euclidean norm over the 32 bytes; of equals the
    /// first. −1 when there is none. `area`: both ends inclusive.
    int nearest(const cv::Rect2f& area, const std::uint8_t* descriptor) const;

private:
    static constexpr int kBucketPx = 32;
    int columns_;
    int rows_;
    std::vector<std::vector<int>> buckets_;
    const CornerSet& targets_;
};

}  // namespace vq
