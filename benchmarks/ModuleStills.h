#pragma once

#include "benchmarks/BenchmarkData.h"
#include "devices/FrameAcquisition.h"

#include <cstdint>
#include <string>
#include <vector>

namespace fieldcal {

/// One of a module's colour cameras, and the rotation that its calibration has to find.
struct JudgedCamera {
    ColourCamera camera = ColourCamera::Third;
    vq::CameraPair cameras;
    Eigen::Matrix3d factory;
    Eigen::Matrix3d truth;

    const char* name() const { return nameOf(camera); }
};

/// The third camera, then the platform camera, as far as the session has them and tells their truth.
std::vector<JudgedCamera> judgedCameras(const session::SessionDescription& session, const CameraParameters& parameters);

/// A recording as the program gets it: what the sensor reads from the module, and its records for each frame.
struct ModuleStills {
    session::SessionDescription session;
    CameraParameters parameters;
    std::vector<FrameRecords> stills;
};

/// Plays the recording on the simulated camera library. Ends the program with a message when it cannot be played.
ModuleStills playStills(const std::string& folder);

/// Brings pictures that lie in no recording into the sensor's records, by the same steps.
class StillConverter {
public:
    explicit StillConverter(const session::SessionDescription& session);

    const CameraParameters& parameters() const { return parameters_; }
    /// The records of the platform camera and of the right infrared imager stay empty where there is no picture.
    FrameRecords convert(const session::FramePictures& pictures) const;

private:
    CameraParameters parameters_;
    std::vector<std::uint32_t> rectificationTable_;  ///< empty without a platform camera
};

}  // namespace fieldcal
