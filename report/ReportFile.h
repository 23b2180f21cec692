#pragma once

#include "report/ServiceReport.h"

namespace fieldcal {

/// Writes the report as one HTML file that needs no other. An earlier file of that name is replaced completely or not
/// at all. False, and one line in `why`, when it cannot be written.
bool writeReport(const QString& path, const ServiceReport& report, QString* why);

/// After a save: the report goes into `reports/` of the program's data folder, named after module and time, and its
/// cameras into the history. What cannot be written costs a log line each.
void keepReport(const QString& folder, const ServiceReport& report);

}  // namespace fieldcal
