#include "report/ServiceReport.h"

#include "engine/Rotation.h"

#include <Eigen/Geometry>

namespace fieldcal {
namespace {

constexpr double kMovedDeg = 0.0005;

}  // namespace

bool ReportedCamera::movedByHand() const {
    return turnDeg(found, accepted) > kMovedDeg;
}

Eigen::Vector3d anglesDegOf(const Eigen::Matrix3d& rotation) {
    return vq::anglesFromRotation(rotation) * vq::kDegreesPerRadian;
}

double turnDeg(const Eigen::Matrix3d& from, const Eigen::Matrix3d& to) {
    // The quaternion preserves small angles, which the arc cosine of the trace would lose.
    const Eigen::Quaterniond turn(Eigen::Matrix3d(to * from.transpose()));
    return Eigen::AngleAxisd(turn.normalized()).angle() * vq::kDegreesPerRadian;
}

}  // namespace fieldcal
