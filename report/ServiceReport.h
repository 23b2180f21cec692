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

/// What a calibration of one colour camera came to. Rotations: depth to colour.
struct ReportedCamera {
    ColourCamera camera = ColourCamera::Third;
    Eigen::Matrix3d stored = Eigen::Matrix3d::Identity();    ///< what the module held before
    Eigen::Matrix3d found = Eigen::Matrix3d::Identity();     ///< what the engine found
    Eigen::Matrix3d accepted = Eigen::Matrix3d::Identity();  ///< the same, or as the user has moved it
    std::optional<vq::SolutionQuality> quality;              ///< of the found rotation
    std::optional<vq::SolutionEvidence> evidence;
    vq::ParallaxReport parallax;

    bool movedByHand() const;
};

/// What a write into the module's flash came to.
struct ReportedWrite {
    bool stored = false;  ///< the module has confirmed it
    QString flash;        ///< what the flash held when it was read again
    QString reason;       ///< why it failed; empty otherwise
    QString backupFile;   ///< where the previous parameter block is kept; may be empty
};

/// Everything that a report tells.
struct ServiceReport {
    QDateTime time;
    QString program;  ///< name and version
    std::uint32_t serial = 0;
    QString firmware;
    QString source;  ///< the recording that was played; empty for the connected module
    std::vector<ReportedCamera> cameras;
    std::optional<ReportedWrite> write;  ///< none when nothing was to be written
};

/// About X, Y and Z, degrees.
Eigen::Vector3d anglesDegOf(const Eigen::Matrix3d& rotation);
/// The angle of the turn from one rotation to the other, degrees.
double turnDeg(const Eigen::Matrix3d& from, const Eigen::Matrix3d& to);

}  // namespace fieldcal
