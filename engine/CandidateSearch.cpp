#include "engine/CandidateSearch.h"

#include "engine/BriefDescriptor.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vq {
namespace {

/// Squared Euclidean distance. It has the same order as the norm itself and is exact in integers.
std::int32_t distance(const std::uint8_t* a, const std::uint8_t* b) {
    std::int32_t sum = 0;
    for (int i = 0; i < kDescriptorBytes; ++i) {
        const std::int32_t difference = static_cast<std::int32_t>(a[i]) - static_cast<std::int32_t>(b[i]);
        sum += difference * difference;
    }
    return sum;
}

int bucketOf(float position, int count, int bucketPx) {
    return std::clamp(static_cast<int>(std::floor(position / static_cast<float>(bucketPx))), 0, count - 1);
}

}  // namespace

CandidateSearch::CandidateSearch(const CornerSet& targets, const cv::Size& targetSize)
    : columns_(targetSize.width / kBucketPx + 1),
      rows_(targetSize.height / kBucketPx + 1),
      buckets_(static_cast<std::size_t>(columns_) * rows_),
      targets_(targets) {
    for (std::size_t i = 0; i < targets.points.size(); ++i) {
        const int column = bucketOf(targets.points[i].x, columns_, kBucketPx);
        const int row = bucketOf(targets.points[i].y, rows_, kBucketPx);
        buckets_[static_cast<std::size_t>(row) * columns_ + column].push_back(static_cast<int>(i));
    }
}

int CandidateSearch::nearest(const cv::Rect2f& area, const std::uint8_t* descriptor) const {
    const float right = area.x + area.width, bottom = area.y + area.height;
    const int lastColumn = bucketOf(right, columns_, kBucketPx), lastRow = bucketOf(bottom, rows_, kBucketPx);
    int best = -1;
    std::int32_t bestDistance = std::numeric_limits<std::int32_t>::max();
    for (int row = bucketOf(area.y, rows_, kBucketPx); row <= lastRow; ++row) {
        for (int column = bucketOf(area.x, columns_, kBucketPx); column <= lastColumn; ++column) {
            for (const int i : buckets_[static_cast<std::size_t>(row) * columns_ + column]) {
                const cv::Point2f& p = targets_.points[static_cast<std::size_t>(i)];
                if (p.x < area.x || p.x > right || p.y < area.y || p.y > bottom) continue;
                const std::int32_t d = distance(descriptor, targets_.descriptors.ptr<std::uint8_t>(i));
                if (d < bestDistance || (d == bestDistance && i < best)) {
                    bestDistance = d;
                    best = i;
                }
            }
        }
    }
    return best;
}

}  // namespace vq
