#include "workflow/FoundTurn.h"

#include "engine/Rotation.h"

#include <cmath>

namespace fieldcal {
namespace {

constexpr double kDeviations = 3;
constexpr double kFitsBelowDeg = 0.1;
constexpr double kUnusualAboveDeg = 3;

bool isWithinDeviations(const FoundTurn& turn) {
    for (std::size_t axis = 0; axis < turn.anglesDeg.size(); ++axis)
        if (std::abs(turn.anglesDeg[axis]) > kDeviations * turn.quality->deviationDeg[axis]) return false;
    return true;
}

}  // namespace

StoredRotation FoundTurn::verdict() const {
    const double totalDeg = std::hypot(anglesDeg[0], anglesDeg[1], anglesDeg[2]);
    if (totalDeg > kUnusualAboveDeg) return StoredRotation::UnusuallyFar;
    const bool fits = quality && totalDeg < kFitsBelowDeg && isWithinDeviations(*this);
    return fits ? StoredRotation::StillFits : StoredRotation::HasTurned;
}

FoundTurn foundTurn(const Rotation& stored, const Rotation& found, const std::optional<vq::SolutionQuality>& quality) {
    using Matrix = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;
    const Eigen::Matrix3d from = Eigen::Map<const Matrix>(stored.data()).cast<double>();
    const Eigen::Matrix3d to = Eigen::Map<const Matrix>(found.data()).cast<double>();
    // What moves points of the picture one way has turned the camera the other way.
    const Eigen::Vector3d angles = vq::anglesFromRotation(from * to.transpose()) * vq::kDegreesPerRadian;
    return {{angles[0], angles[1], angles[2]}, quality};
}

}  // namespace fieldcal
