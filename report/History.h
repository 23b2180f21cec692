#pragma once

#include "report/ServiceReport.h"

namespace fieldcal {

/// Adds one line for each camera of a report to `history.csv` in the program's data folder; the first line of the file
/// names the columns. Either all lines are added or none. Returns false after logging the reason.
bool appendHistory(const QString& folder, const ServiceReport& report);

/// Returns when a calibration of the module was last stored, according to the history; invalid when there is none, or
/// when its date cannot be right, because the computer's clock was wrong then or is now. A line that cannot be read is
/// skipped.
QDateTime lastStored(const QString& folder, std::uint32_t serial);

}  // namespace fieldcal
