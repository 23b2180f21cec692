#pragma once

#include "session/RecordedSession.h"

#include <string>

namespace fieldcal {

/// A camera as a CameraInfo YAML of ROS describes it. Principal points are in pixels of the image itself, with the
/// centre of the first pixel at (0, 0).
struct CameraInfo {
    session::RawIntrinsics raw;      ///< camera_matrix and distortion_coefficients (plumb_bob)
    session::Intrinsics rectified;   ///< projection_matrix
    session::Matrix3 rectification;  ///< X_rectified = rectification · X_raw
};

/// Reads a CameraInfo YAML. A failure returns false and one line "file: key: reason" in `why`.
bool readCameraInfo(const std::string& file, CameraInfo* out, std::string* why);

/// The transform from the infrared to a colour camera: X_colour = rotation · X_infrared + translation.
struct ColourTransform {
    session::Matrix3 rotation{};
    session::Vector3 translationMm{};
};

/// Reads the parameters of tf2's static_transform_publisher, as `export --format tf` writes them: the pose of the
/// colour camera in the infrared frame, metres and a quaternion. A failure returns false and one line
/// "file: key: reason" in `why`.
bool readTransform(const std::string& file, ColourTransform* out, std::string* why);

}  // namespace fieldcal
