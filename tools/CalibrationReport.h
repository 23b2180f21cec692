#pragma once

#include "camera/ColourCamera.h"
#include "camera/Rotation.h"
#include "engine/CrossModalMatcher.h"
#include "engine/ParallaxReport.h"
#include "engine/SolutionQuality.h"

#include <QJsonObject>
#include <QString>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace fieldcal {

struct PairReport {
    vq::PairStatistics statistics;
    std::int32_t code = 0;  ///< answer of the engine
    double seconds = 0;     ///< from the images to the answer
};

/// The result of playing a recording.
struct CalibrationReport {
    bool solved = false;
    ColourCamera camera = ColourCamera::Third;
    int framesUsed = 0;                 ///< frame sets grabbed
    std::array<double, 3> anglesDeg{};  ///< of `rotation`, about X, Y and Z
    Matrix3 rotation{};                 ///< depth to colour; the factory rotation when not solved
    Matrix3 factoryRotation{};
    std::optional<double> errorDeg;              ///< set when solved and the recording holds the truth
    std::optional<vq::SolutionQuality> quality;  ///< of the final fit
    /// The registration error in pixels for a surface at each distance in metres. It is set together with `errorDeg`,
    /// but only when the recording has depth.
    std::map<int, double> registrationPx;
    vq::ParallaxReport parallax;    ///< of the attempt that processed the last pair
    std::vector<PairReport> pairs;  ///< of all attempts
    QString lastSave;               ///< outcome of an earlier save that was interrupted; empty when there was none
    std::optional<bool> written;    ///< whether the flash holds the rotation; unset when writing was not asked for
    double totalSeconds = 0;
    double frameSeconds = 0;  ///< grabbing, brightness and frame selection of all frames

    double stageSeconds(double vq::PairStatistics::*stage) const;
};

QJsonObject reportJson(const CalibrationReport& report);
QString reportText(const CalibrationReport& report);

}  // namespace fieldcal
