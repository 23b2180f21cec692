#include "engine/TextForms.h"

#include "diagnostics/Logger.h"
#include "engine/Rotation.h"

#include <Eigen/Geometry>

namespace vq {

using fieldcal::formatString;

std::string poseEulerText(const Pose& pose) {
    const Eigen::Vector3d degrees = anglesFromRotation(pose.topLeftCorner<3, 3>().cast<double>()) * kDegreesPerRadian;
    const Eigen::Vector3d t = pose.topRightCorner<3, 1>().cast<double>();
    return formatString("R [% .4f % .4f % .4f] T [% .4f % .4f % .4f]", degrees[0], degrees[1], degrees[2], t[0], t[1],
                        t[2]);
}

std::string poseAngleAxisText(const Pose& pose) {
    const Eigen::Matrix3d rotation = pose.topLeftCorner<3, 3>().cast<double>();
    const Eigen::AngleAxisd angleAxis(rotation);
    const Eigen::Vector3d& axis = angleAxis.axis();
    const Eigen::Vector3d t = pose.topRightCorner<3, 1>().cast<double>();
    return formatString("R [a=% .4f deg | % .4f % .4f % .4f] T [% .4f % .4f % .4f]",
                        angleAxis.angle() * kDegreesPerRadian, axis[0], axis[1], axis[2], t[0], t[1], t[2]);
}

std::string poseText(const Pose& pose, bool angleAxis) {
    return angleAxis ? poseAngleAxisText(pose) : poseEulerText(pose);
}

std::string rotationVectorText(const Eigen::Vector3d& vector, double scalar) {
    return formatString("[%f %f %f | %f]", vector[0], vector[1], vector[2], scalar);
}

std::string matrixText(const Eigen::Matrix3d& matrix) {
    std::string text;
    for (int row = 0; row < 3; ++row) {
        text += formatString("%f %f %f\n", matrix(row, 0), matrix(row, 1), matrix(row, 2));
    }
    return text;
}

std::string matrixText(const Eigen::Matrix<double, 3, 4>& matrix) {
    std::string text;
    for (int row = 0; row < 3; ++row) {
        text += formatString("%f %f %f %f\n", matrix(row, 0), matrix(row, 1), matrix(row, 2), matrix(row, 3));
    }
    return text;
}

std::string vectorText(const Eigen::VectorXd& vector) {
    std::string text;
    for (const double element : vector)
        text += formatString("%f ", element);
    return text;
}

std::string intrinsicsText(const fieldcal::CameraModel& model) {
    return formatString("fxfy = [%f %f] cxcy=[%f %f] k1k2k3=[%f %f %f] p1p2=[%f %f]", static_cast<double>(model.fx),
                        static_cast<double>(model.fy), static_cast<double>(model.cx), static_cast<double>(model.cy),
                        0.0, 0.0, 0.0, 0.0, 0.0);
}

}  // namespace vq
