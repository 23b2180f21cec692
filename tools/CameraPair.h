#pragma once

#include "camera/ColourCamera.h"
#include "session/RecordedSession.h"

#include <QJsonObject>

#include <cstdint>
#include <optional>
#include <string>

namespace fieldcal {

/// The tablet's rear camera before rectification.
struct UnrectifiedCamera {
    session::RawIntrinsics intrinsics;
    session::Matrix3 rectification{};  ///< X_rectified = rectification · X_raw
};

/// The infrared camera and one colour camera, as calibrated. Principal points follow the project's convention
/// (`docs/conventions.md`).
struct CameraPair {
    ColourCamera camera = ColourCamera::Third;
    std::uint32_t serial = 0;
    session::Intrinsics infrared;
    session::Intrinsics colour;  ///< for the platform camera: of its rectified images
    std::optional<UnrectifiedCamera> unrectified;
    session::Matrix3 rotation{};                   ///< depth to colour
    session::Vector3 translationM{};               ///< depth to colour, metres
    std::optional<session::Vector3> deviationDeg;  ///< standard deviations of the angles about X, Y and Z

    const char* name() const { return nameOf(camera); }
};

/// Returns the cameras with the rotation that the session describes. The platform camera may be asked for only when the
/// session has one.
CameraPair cameraPair(const session::SessionDescription& session, ColourCamera camera);

/// Returns the value of the key "cameras" in a result: the pair without its rotation, deviations and serial number.
QJsonObject camerasJson(const CameraPair& pair);

/// Reads a result of `calibrate --json`. A result that is not solved is refused. On failure returns false and sets
/// `why` to one line of the form "file: key: reason".
bool readResult(const std::string& file, CameraPair* out, std::string* why);

}  // namespace fieldcal
