#pragma once

#include "camera/ColourCamera.h"
#include "engine/ParallaxReport.h"
#include "engine/SolutionEvidence.h"
#include "engine/SolutionQuality.h"

#include <Eigen/Core>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace fieldcal {

/// The result of a calibration of one colour camera. Rotations: depth to colour.
struct ReportedCamera {
    ColourCamera camera = ColourCamera::Third;
    Eigen::Matrix3d stored = Eigen::Matrix3d::Identity();    ///< as stored in the module before
    Eigen::Matrix3d found = Eigen::Matrix3d::Identity();     ///< as estimated by the engine
    Eigen::Matrix3d accepted = Eigen::Matrix3d::Identity();  ///< as accepted by the user, possibly after a drag
    std::optional<vq::SolutionQuality> quality;              ///< of the estimated rotation
    std::optional<vq::SolutionEvidence> evidence;
    vq::ParallaxReport parallax;

    bool movedByHand() const;
};

/// The result of a write into the module's flash.
struct ReportedWrite {
    bool stored = false;  ///< the module has confirmed it
    QString flash;        ///< the content of the flash when it was read back
    QString reason;       ///< why it failed; empty otherwise
    QString backupFile;   ///< file with the previous parameter block; may be empty
};

/// The content of a report.
struct ServiceReport {
    QDateTime time;
    QString program;  ///< name and version
    std::uint32_t serial = 0;
    QString firmware;
    QString source;  ///< the recording that was played; empty for the connected module
    std::vector<ReportedCamera> cameras;
    std::optional<ReportedWrite> write;  ///< none when there was nothing to write
};

/// Returns the angles about X, Y and Z, degrees.
Eigen::Vector3d anglesDegOf(const Eigen::Matrix3d& rotation);
/// Returns the angle of the rotation between the two, degrees.
double turnDeg(const Eigen::Matrix3d& from, const Eigen::Matrix3d& to);

}  // namespace fieldcal
