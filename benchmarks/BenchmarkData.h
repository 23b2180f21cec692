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

/// The pictures of a recording as the engine gets them, for the camera inside the module.
struct BenchmarkData {
    std::string folder;
    vq::CameraPair cameras;
    CameraParameters parameters;  ///< of the platform camera, too, where the session has one
    Eigen::Matrix3d factory;
    Eigen::Matrix3d truth;  ///< the factory rotation when the recording has none
    std::vector<vq::ImagePairRecord> infrared;
    std::vector<vq::ImagePairRecord> colour;
};

Eigen::Matrix3d matrixOf(const session::Matrix3& rows);

/// All cameras of a session as the program reads them from the module.
CameraParameters parametersOf(const session::SessionDescription& session);

/// The third camera's picture as the program gets it: in the size of `model`.
void scaleThird(const session::FramePictures& pictures, const CameraModel& model, ImageFrame32* out);

/// The cameras of a session, without pictures; and one more pair of pictures of its third camera.
BenchmarkData camerasOf(const session::SessionDescription& session);
void addPair(const session::FramePictures& pictures, BenchmarkData* data);

/// Ends the program with a message when the recording cannot be read.
BenchmarkData loadRecording(const std::string& folder);

/// The recordings named by FIELDCAL_RECORDINGS (folders separated by colons); else those that lie beside the project.
std::vector<std::string> recordingFolders();

/// Degrees between two rotations.
double differenceDeg(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b);

}  // namespace fieldcal
