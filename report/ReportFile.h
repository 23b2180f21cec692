#pragma once

#include "report/ServiceReport.h"

namespace fieldcal {

/// Writes the report as one self-contained HTML file. An existing file is replaced completely or not at all. Returns
/// false, with one line in `why`, when the file cannot be written.
bool writeReport(const QString& path, const ServiceReport& report, QString* why);

/// To be called after a save: writes the report into `reports/` of the program's data folder, named after module and
/// time, and adds its cameras to the history. Each failure to write is logged in one line.
void keepReport(const QString& folder, const ServiceReport& report);

}  // namespace fieldcal
