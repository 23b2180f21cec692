#pragma once

#include "devices/Sensor.h"
#include "workflow/CalibrationRecords.h"

#include <QString>

namespace fieldcal {

/// Writes each camera's accepted rotation, or the factory's, into the module. While something accepted is at stake, a
/// note stands in `dataFolder` from before the write until the module has confirmed it. True: it has.
bool storeCalibration(Sensor& sensor, const CalibrationRecords& records, const QString& dataFolder);

}  // namespace fieldcal
