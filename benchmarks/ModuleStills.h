#pragma once

#include "benchmarks/BenchmarkData.h"
#include "devices/FrameAcquisition.h"

#include <cstdint>
#include <string>
#include <vector>

namespace fieldcal {

/// One of a module's colour cameras with its true rotation.
struct JudgedCamera {
    ColourCamera camera = ColourCamera::Third;
    vq::CameraPair cameras;
    Eigen::Matrix3d factory;
    Eigen::Matrix3d truth;

    const char* name() const { return nameOf(camera); }
};

/// Returns the third and the platform camera, as far as the session has them with their true rotations.
std::vector<JudgedCamera> judgedCameras(const session::SessionDescription& session, const CameraParameters& parameters);

/// A recording as the program receives it: the calibration that the sensor reads from the module, and the sensor's
/// records for each frame.
struct ModuleStills {
    session::SessionDescription session;
    CameraParameters parameters;
    std::vector<FrameRecords> stills;
};

/// Plays the recording on the simulated camera library. Ends the program with a message when it cannot be played.
ModuleStills playStills(const std::string& folder);

/// Converts images that are not in a recording to the sensor's records, by the same steps.
class StillConverter {
public:
    explicit StillConverter(const session::SessionDescription& session);

    const CameraParameters& parameters() const { return parameters_; }
    /// The records of the platform camera and of the right infrared imager are empty where there is no image.
    FrameRecords convert(const session::FrameImages& images) const;

private:
    CameraParameters parameters_;
    std::vector<std::uint32_t> rectificationTable_;  ///< empty without a platform camera
};

}  // namespace fieldcal
