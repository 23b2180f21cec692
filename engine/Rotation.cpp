#include "engine/Rotation.h"

namespace vq {

using RowMajor3d = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

Eigen::Matrix3d rotationFromAngles(const Eigen::Vector3d& anglesRad) {
    const fieldcal::Matrix3 rows = fieldcal::rotationFromAngles({anglesRad[0], anglesRad[1], anglesRad[2]});
    return Eigen::Map<const RowMajor3d>(rows.data());
}

Eigen::Vector3d anglesFromRotation(const Eigen::Matrix3d& rotation) {
    fieldcal::Matrix3 rows{};
    Eigen::Map<RowMajor3d>(rows.data()) = rotation;
    const fieldcal::Angles3 angles = fieldcal::anglesFromRotation(rows);
    return {angles[0], angles[1], angles[2]};
}

}  // namespace vq
