#pragma once

#include "report/ServiceReport.h"

#include <QByteArray>

namespace fieldcal {

/// The report as an HTML document: one page, English, with its pictures inside, under 2 MB.
QByteArray reportPage(const ServiceReport& report);

}  // namespace fieldcal
