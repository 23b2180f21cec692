#pragma once

#include "camera/ColourCamera.h"
#include "session/RecordedSession.h"

#include <QJsonObject>

#include <cstdint>
#include <optional>
#include <string>

namespace fieldcal {

/// The tablet's rear camera before its picture is rectified.
struct UnrectifiedCamera {
    session::RawIntrinsics intrinsics;
    session::Matrix3 rectification{};  ///< X_rectified = rectification · X_raw
};

/// The infrared camera and one colour camera, as they are calibrated. Intrinsics follow the project's convention about
/// principal points (`docs/conventions.md`).
struct CameraPair {
    ColourCamera camera = ColourCamera::Third;
    std::uint32_t serial = 0;
    session::Intrinsics infrared;
    session::Intrinsics colour;  ///< the platform camera's: of its rectified images
    std::optional<UnrectifiedCamera> unrectified;
    session::Matrix3 rotation{};                   ///< depth to colour
    session::Vector3 translationM{};               ///< depth to colour, metres
    std::optional<session::Vector3> deviationDeg;  ///< of the angles about X, Y and Z

    const char* name() const { return nameOf(camera); }
};

/// Returns the cameras with the rotation that the session describes. The platform camera only where it has one.
CameraPair cameraPair(const session::SessionDescription& session, ColourCamera camera);

/// Returns what the key "cameras" of a result holds: all of the pair but its rotation, deviations and serial number.
QJsonObject camerasJson(const CameraPair& pair);

/// Reads a result of `calibrate --json`. It fails for one that is not solved, and `why` is one line
/// "file: key: reason".
bool readResult(const std::string& file, CameraPair* out, std::string* why);

}  // namespace fieldcal
