#include "engine/RegistrationContext.h"

namespace vq {

Pose poseFromExtrinsics(const fieldcal::CameraExtrinsics& extrinsics) {
    Pose pose = Pose::Identity();
    pose.topLeftCorner<3, 3>() =
        Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(extrinsics.rotation.data());
    pose.topRightCorner<3, 1>() = Eigen::Map<const Eigen::Vector3f>(extrinsics.translation.data());
    return pose;
}

}  // namespace vq
