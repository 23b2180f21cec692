#pragma once

#include "tools/CameraPair.h"

#include <QByteArray>

namespace fieldcal {

enum class ExportFormat {
    Ros,     ///< CameraInfo of the colour camera, YAML
    Tf,      ///< parameters of tf2's static_transform_publisher, YAML, and its command line
    Urdf,    ///< a fixed joint
    OpenCv,  ///< FileStorage YAML with M1 D1 M2 D2 R T
    Kalibr,  ///< camchain YAML
};

/// Returns the calibration as a file of this format. `docs/exports.md` defines frames, directions and units.
QByteArray exported(const CameraPair& pair, ExportFormat format);

}  // namespace fieldcal
