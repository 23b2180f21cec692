#pragma once

#include "camera/CameraParameters.h"
#include "engine/RegistrationState.h"

#include <cstdint>
#include <string>

namespace vq {

/// A camera with its distortion, in pixels. A rectified camera's coefficients are zero.
struct CameraRecord {
    std::int32_t width = 0;
    std::int32_t height = 0;
    float fx = 0;
    float fy = 0;
    float cx = 0;
    float cy = 0;
    float k1 = 0;
    float k2 = 0;
    float p1 = 0;
    float p2 = 0;
    float k3 = 0;
};

/// The cameras and the rotation that the engine computes with, as saved to a file for the next run or for offline
/// analysis.
///
/// The file has 200 bytes, little-endian, without header or padding: the three camera records field by field (width,
/// height, fx, fy, cx, cy, k1, k2, k3, p1, p2; in the file, k3 stands *before* p1 and p2), the pose's 16 float32 values
/// row by row, and `value`.
struct CalibrationState {
    CameraRecord infrared;
    CameraRecord colour;            ///< the module's own colour camera
    CameraRecord calibratedColour;  ///< the colour camera that is being calibrated
    Pose pose = Pose::Identity();   ///< depth to the calibrated colour camera, metres
    std::uint32_t value = 0;        ///< which camera is calibrated: 0 the one in the module, 1 the platform camera

    /// Replaces the file. Returns false and logs one ERROR line when the file cannot be opened or written. `path` is in
    /// the encoding of the C library.
    bool writeToFile(const std::string& path) const;

    /// Returns false, logs one ERROR line "path: field: reason" and changes nothing when the file cannot be opened, or
    /// is shorter or longer than a state. Values are not checked: every bit pattern of the right length is accepted.
    bool readFromFile(const std::string& path);
};

/// Returns the state of rectified cameras; their distortion is zero.
CalibrationState calibrationState(const fieldcal::CameraModel& infrared, const fieldcal::CameraModel& colour,
                                  const fieldcal::CameraModel& calibratedColour, const Pose& pose, std::uint32_t value);

}  // namespace vq
