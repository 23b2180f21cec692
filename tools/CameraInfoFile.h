#pragma once

#include "session/RecordedSession.h"

#include <string>

namespace fieldcal {

/// A camera as described by a ROS CameraInfo YAML file. Principal points are in pixels of the image itself, with the
/// centre of the first pixel at (0, 0).
struct CameraInfo {
    session::RawIntrinsics raw;      ///< camera_matrix and distortion_coefficients (plumb_bob)
    session::Intrinsics rectified;   ///< projection_matrix
    session::Matrix3 rectification;  ///< X_rectified = rectification · X_raw
};

/// Reads a CameraInfo YAML file. On failure returns false and sets `why` to one line of the form "file: key: reason".
bool readCameraInfo(const std::string& file, CameraInfo* out, std::string* why);

/// The transform from the infrared to a colour camera: X_colour = rotation · X_infrared + translation.
struct ColourTransform {
    session::Matrix3 rotation{};
    session::Vector3 translationMm{};
};

/// Reads the parameters of tf2's static_transform_publisher, as `export --format tf` writes them: the pose of the
/// colour camera in the infrared frame, in metres and as a quaternion. On failure returns false and sets `why` to one
/// line of the form "file: key: reason".
bool readTransform(const std::string& file, ColourTransform* out, std::string* why);

}  // namespace fieldcal
