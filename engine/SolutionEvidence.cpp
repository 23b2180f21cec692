#include "engine/SolutionEvidence.h"

#include <algorithm>

namespace vq {

std::size_t areaOf(const cv::Point2f& point, const fieldcal::CameraModel& infrared) {
    const auto share = [](float position, int size, int count) {
        return std::clamp(static_cast<int>(position * static_cast<float>(count) / static_cast<float>(size)), 0,
                          count - 1);
    };
    return static_cast<std::size_t>(share(point.y, infrared.height, kAreaRows) * kAreaColumns +
                                    share(point.x, infrared.width, kAreaColumns));
}

Eigen::Vector2d SolutionEvidence::residualPx(const EvidenceMatch& match, const Eigen::Matrix3d& rotation) const {
    const Eigen::Vector2d expected =
        projection.colourPoint(rotation, match.infrared, static_cast<double>(match.inverseDepth));
    return expected - Eigen::Vector2d(match.colour.x, match.colour.y);
}

std::array<int, kAreaCount> SolutionEvidence::matchesPerArea() const {
    std::array<int, kAreaCount> counts{};
    for (const EvidenceMatch& match : matches)
        ++counts[areaOf(match.infrared, projection.cameras.infrared)];
    return counts;
}

}  // namespace vq
