#pragma once

#include "devices/Sensor.h"
#include "workflow/CalibrationRecords.h"

#include <QString>

namespace fieldcal {

/// Writes each camera's accepted rotation, or the factory's, into the module. If any rotation was accepted, a note is
/// kept in `dataFolder` from before the write until the module has confirmed it. Returns true when the module has
/// confirmed it.
bool storeCalibration(Sensor& sensor, const CalibrationRecords& records, const QString& dataFolder);

}  // namespace fieldcal
