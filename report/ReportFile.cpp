#include "report/ReportFile.h"

#include "report/History.h"
#include "report/ReportPage.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace fieldcal {

bool writeReport(const QString& path, const ServiceReport& report, QString* why) {
    const QByteArray page = reportPage(report);
    QSaveFile file(path);
    // The explicit flush detects a full disk, which `commit` alone does not report.
    const bool written = file.open(QIODevice::WriteOnly) && file.write(page) == page.size() && file.flush() &&
                         file.size() == page.size() && file.commit();
    if (!written) *why = path + ": " + file.errorString();
    return written;
}

void keepReport(const QString& folder, const ServiceReport& report) {
    const QString name =
        QString::number(report.serial) + report.time.toUTC().toString("'-'yyyyMMdd'T'HHmmsszzz'Z.html'");
    QDir().mkpath(folder + "/reports");
    QString why;
    if (!writeReport(folder + "/reports/" + name, report, &why))
        qCritical("The report of the calibration cannot be kept: %s", qUtf8Printable(why));
    appendHistory(folder, report);
}

}  // namespace fieldcal
