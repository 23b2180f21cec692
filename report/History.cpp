#include "report/History.h"

#include "files/SafeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <string>

namespace fieldcal {
namespace {

constexpr char kHeader[] =
    "time,serial,camera,before_x_deg,before_y_deg,before_z_deg,after_x_deg,after_y_deg,after_z_deg,"
    "deviation_x_deg,deviation_y_deg,deviation_z_deg,proof_stored_px,proof_new_px,result\n";

constexpr const char* kStored = "stored";  ///< the result of a save that succeeded
constexpr qint64 kLargestHistory = 64 << 20;
constexpr int kMinFields = 3;
constexpr int kFirstYear = 2020;  ///< before this program; a computer's clock without a battery begins earlier

QString quoted(QString field) {
    field.replace('\n', ' ').replace('\r', ' ');
    if (!field.contains(',') && !field.contains('"')) return field;
    return '"' + field.replace('"', "\"\"") + '"';
}

template <typename Angles>
void addAngles(QStringList* fields, const Angles& anglesDeg) {
    for (const double angle : anglesDeg)
        fields->append(QString::number(angle, 'f', 5));
}

QString resultText(const ServiceReport& report) {
    if (!report.write) return "not written";
    return report.write->stored ? QString(kStored) : "not stored: " + report.write->reason;
}

QByteArray lineOf(const ServiceReport& report, const ReportedCamera& camera) {
    QStringList fields{report.time.toUTC().toString(Qt::ISODate), QString::number(report.serial),
                       nameOf(camera.camera)};
    for (const Eigen::Matrix3d& rotation : {camera.stored, camera.accepted}) {
        const Eigen::Vector3d anglesDeg = anglesDegOf(rotation);
        addAngles(&fields, std::array<double, 3>{anglesDeg.x(), anglesDeg.y(), anglesDeg.z()});
    }
    if (camera.quality) {
        addAngles(&fields, camera.quality->deviationDeg);
    } else {
        fields << ""
               << ""
               << "";
    }
    const bool proven = camera.quality && camera.quality->proof;
    fields << (proven ? QString::number(camera.quality->proof->storedPx, 'f', 3) : QString())
           << (proven ? QString::number(camera.quality->proof->newPx, 'f', 3) : QString())
           << quoted(resultText(report));
    return fields.join(',').toUtf8() + '\n';
}

/// Returns whether the computer's clock can have been right at that time and now.
bool isPossible(const QDateTime& time) {
    return time.date().year() >= kFirstYear && time <= QDateTime::currentDateTimeUtc();
}

}  // namespace

bool appendHistory(const QString& folder, const ServiceReport& report) {
    QByteArray lines;
    for (const ReportedCamera& camera : report.cameras)
        lines += lineOf(report, camera);
    const std::string path = (folder + "/history.csv").toStdString();
    std::string why;
    if (makeFolders(folder.toStdString(), &why) && appendLines(path, kHeader, lines.toStdString(), &why)) return true;
    qCritical("%s: the history of calibrations cannot be continued: %s", path.c_str(), why.c_str());
    return false;
}

QDateTime lastStored(const QString& folder, std::uint32_t serial) {
    QFile file(folder + "/history.csv");
    if (!QFileInfo(file).isFile() || file.size() > kLargestHistory || !file.open(QIODevice::ReadOnly)) return {};
    QDateTime last;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(',');
        if (fields.size() < kMinFields || fields[1] != QByteArray::number(serial) || fields.last() != kStored) continue;
        const QDateTime time = QDateTime::fromString(QString::fromLatin1(fields[0]), Qt::ISODate);
        if (time.isValid()) last = time;
    }
    return isPossible(last) ? last : QDateTime();
}

}  // namespace fieldcal
