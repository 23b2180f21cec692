#include "engine/Rotation.h"

namespace vq {

namespace {

using RowMajor3d = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

fieldcal::Matrix3 rowsOf(const Eigen::Matrix3d& matrix) {
    fieldcal::Matrix3 rows{};
    Eigen::Map<RowMajor3d>(rows.data()) = matrix;
    return rows;
}

}  // namespace

Eigen::Matrix3d matrixOf(const fieldcal::Matrix3& rows) {
    return Eigen::Map<const RowMajor3d>(rows.data());
}

Eigen::Matrix3d matrixOf(const fieldcal::Rotation& rows) {
    return Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(rows.data()).cast<double>();
}

Eigen::Matrix3d rotationFromAngles(const Eigen::Vector3d& anglesRad) {
    return matrixOf(fieldcal::rotationFromAngles({anglesRad[0], anglesRad[1], anglesRad[2]}));
}

Eigen::Vector3d anglesFromRotation(const Eigen::Matrix3d& rotation) {
    const fieldcal::Angles3 angles = fieldcal::anglesFromRotation(rowsOf(rotation));
    return {angles[0], angles[1], angles[2]};
}

double angleBetweenDeg(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b) {
    return fieldcal::angleBetweenDeg(rowsOf(a), rowsOf(b));
}

}  // namespace vq
