#pragma once

#include "engine/CornerSet.h"

#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Sorts target corners into buckets, so that only those inside a search rectangle are compared. Read-only after
/// construction. The corners must outlive the search.
class CandidateSearch {
public:
    CandidateSearch(const CornerSet& targets, const cv::Size& targetSize);

    /// Returns the index of the target corner inside `area` whose descriptor is nearest by Euclidean norm over the 32
    /// bytes; on a tie, the first one. Returns −1 when there is none. `area` includes both ends.
    int nearest(const cv::Rect2f& area, const std::uint8_t* descriptor) const;

private:
    static constexpr int kBucketPx = 32;
    int columns_;
    int rows_;
    std::vector<std::vector<int>> buckets_;
    const CornerSet& targets_;
};

}  // namespace vq
