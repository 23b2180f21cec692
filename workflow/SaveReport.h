#pragma once

#include "camera/CameraParameters.h"
#include "devices/Sensor.h"
#include "report/ServiceReport.h"
#include "workflow/CalibrationRecords.h"

#include <array>
#include <optional>

namespace vq {
class SensorCalibrator;
}

namespace fieldcal {

/// What the engine knew about each camera's solution when it was found. It is kept until the save, as the engine
/// forgets it once the other camera is calibrated.
class SaveReport {
public:
    void note(ColourCamera camera, const CameraParameters& stored, const Rotation& found,
              const vq::SensorCalibrator& engine, Sensor& sensor);
    /// After `storeCalibration`: keeps the report and the history lines of the cameras whose rotation was accepted, in
    /// the program's data folder.
    void keep(const QString& dataFolder, const Sensor& sensor, const CalibrationRecords& records, bool stored) const;

private:
    PerColourCamera<std::optional<ReportedCamera>> cameras_;
    QString firmware_;
};

}  // namespace fieldcal
