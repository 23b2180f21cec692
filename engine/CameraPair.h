#pragma once

#include "camera/CameraParameters.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

namespace vq {

/// The models of the infrared and the colour camera as the engine uses them.
struct CameraPair {
    fieldcal::CameraModel infrared;
    fieldcal::CameraModel colour;
    fieldcal::ColourScaling colourScaling;

    /// Converts a position in the delivered colour image to pixels of the colour model, and back.
    cv::Point2f colourModelPoint(const cv::Point2f& delivered) const {
        return {(delivered.x + 0.5F) * colourScaling.x - 0.5F, (delivered.y + 0.5F) * colourScaling.y - 0.5F};
    }
    cv::Point2f deliveredColourPoint(const cv::Point2f& model) const {
        return {(model.x + 0.5F) / colourScaling.x - 0.5F, (model.y + 0.5F) / colourScaling.y - 0.5F};
    }
};

/// K = [fx 0 cx; 0 fy cy; 0 0 1].
inline Eigen::Matrix3d cameraMatrix(const fieldcal::CameraModel& model) {
    Eigen::Matrix3d matrix;
    matrix << model.fx, 0, model.cx, 0, model.fy, model.cy, 0, 0, 1;
    return matrix;
}

}  // namespace vq
