#pragma once

#include "report/ServiceReport.h"

namespace fieldcal {

/// Adds one line for each camera of a report to `history.csv` in the program's data folder, whose first line names the
/// columns. Either all of them are added or none; false after logging why.
bool appendHistory(const QString& folder, const ServiceReport& report);

}  // namespace fieldcal
