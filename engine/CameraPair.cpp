#include "engine/CameraPair.h"

namespace vq {

Eigen::Matrix3d cameraMatrix(const fieldcal::CameraModel& model) {
    Eigen::Matrix3d matrix;
    matrix << model.fx, 0, model.cx, 0, model.fy, model.cy, 0, 0, 1;
    return matrix;
}

}  // namespace vq
