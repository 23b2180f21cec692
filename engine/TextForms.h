#pragma once

#include "camera/CameraParameters.h"
#include "engine/RegistrationState.h"

#include <string>

namespace vq {

/// Log texts of poses, vectors and cameras.
std::string poseEulerText(const Pose& pose);      ///< "R [a0 a1 a2] T [x y z]", degrees and metres
std::string poseAngleAxisText(const Pose& pose);  ///< "R [a=angle deg | axis] T [x y z]"
std::string poseText(const Pose& pose, bool angleAxis);
std::string rotationVectorText(const Eigen::Vector3d& vector, double scalar);
std::string matrixText(const Eigen::Matrix3d& matrix);
std::string matrixText(const Eigen::Matrix<double, 3, 4>& matrix);
std::string vectorText(const Eigen::VectorXd& vector);
/// A rectified camera has no distortion; its coefficients are printed as zeros.
std::string intrinsicsText(const fieldcal::CameraModel& model);

}  // namespace vq
