#pragma once

#include "report/ServiceReport.h"

#include <QByteArray>

namespace fieldcal {

/// Returns the report as an HTML document: one page, in English, with embedded images, under 2 MB.
QByteArray reportPage(const ServiceReport& report);

}  // namespace fieldcal
