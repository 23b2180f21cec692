#include "report/ReportFile.h"

#include "files/SafeFile.h"
#include "report/History.h"
#include "report/ReportPage.h"

#include <QFile>

#include <string>

namespace fieldcal {

bool writeReport(const QString& path, const ServiceReport& report, QString* why) {
    const QByteArray page = reportPage(report);
    std::string reason;
    const bool written =
        writeFile(path.toStdString(), page.constData(), static_cast<std::size_t>(page.size()), &reason);
    *why = QString::fromStdString(reason);
    return written;
}

void keepReport(const QString& folder, const ServiceReport& report) {
    const QString stem = folder + "/reports/" + QString::number(report.serial) +
                         report.time.toUTC().toString("'-'yyyyMMdd'T'HHmmsszzz'Z'");
    QString free = stem + ".html";  // where the clock was put back, a time may come again
    for (int i = 2; QFile::exists(free); ++i)
        free = stem + '-' + QString::number(i) + ".html";
    std::string reason;
    const bool possible = makeFolders((folder + "/reports").toStdString(), &reason);
    QString why = QString::fromStdString(reason);
    if (!possible || !writeReport(free, report, &why))
        qCritical("The report of the calibration cannot be kept: %s", qUtf8Printable(why));
    appendHistory(folder, report);
}

}  // namespace fieldcal
