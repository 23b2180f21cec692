#pragma once

#include "camera/CameraParameters.h"
#include "engine/CameraPair.h"
#include "engine/ImagePairRecord.h"
#include "session/RecordedSession.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <string>
#include <vector>

namespace fieldcal {

/// The images of a recording as the engine receives them, for the camera inside the module.
struct BenchmarkData {
    std::string folder;
    vq::CameraPair cameras;
    CameraParameters parameters;  ///< includes the platform camera where the session has one
    Eigen::Matrix3d factory;
    Eigen::Matrix3d truth;  ///< the factory rotation when the recording does not contain the true one
    std::vector<vq::ImagePairRecord> infrared;
    std::vector<vq::ImagePairRecord> colour;
};

/// Returns the calibration of all cameras of a session, as the program reads it from the module.
CameraParameters parametersOf(const session::SessionDescription& session);

/// Scales the third camera's image to the size of `model`, as the program does.
void scaleThird(const session::FrameImages& images, const CameraModel& model, ImageFrame32* out);

/// `camerasOf` returns the cameras of a session without images; `addPair` adds a pair of images of its third camera.
BenchmarkData camerasOf(const session::SessionDescription& session);
void addPair(const session::FrameImages& images, BenchmarkData* data);

/// Ends the program with a message when the recording cannot be read.
BenchmarkData loadRecording(const std::string& folder);

/// Returns the recordings named by FIELDCAL_RECORDINGS (folders separated by colons), otherwise those beside the
/// project.
std::vector<std::string> recordingFolders();

}  // namespace fieldcal
