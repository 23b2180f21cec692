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

/// Keeps the engine's data about each camera's solution until the save, because the engine discards it once the other
/// camera is calibrated.
class SaveReport {
public:
    void note(ColourCamera camera, const CameraParameters& stored, const Rotation& found,
              const vq::SensorCalibrator& engine, Sensor& sensor);
    /// To be called after `storeCalibration`. Writes the report and the history lines of the cameras whose rotation was
    /// accepted into the program's data folder.
    void keep(const QString& dataFolder, const Sensor& sensor, const CalibrationRecords& records, bool stored) const;

private:
    PerColourCamera<std::optional<ReportedCamera>> cameras_;
    QString firmware_;
};

}  // namespace fieldcal
