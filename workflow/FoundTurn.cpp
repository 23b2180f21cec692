#include "workflow/FoundTurn.h"

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
    // The colour camera rotates opposite to the apparent motion of image points.
    const Matrix3 turn = product(widened(stored.data()), transposed(widened(found.data())));
    FoundTurn result{anglesFromRotation(turn), quality};
    for (double& angle : result.anglesDeg)
        angle *= kDegreesPerRadian;
    return result;
}

}  // namespace fieldcal
