#include "report/History.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace fieldcal {
namespace {

constexpr char kHeader[] =
    "time,serial,camera,before_x_deg,before_y_deg,before_z_deg,after_x_deg,after_y_deg,after_z_deg,"
    "deviation_x_deg,deviation_y_deg,deviation_z_deg,proof_stored_px,proof_new_px,result\n";

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
    return report.write->stored ? QString("stored") : "not stored: " + report.write->reason;
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

/// Appends whole lines. On a failure the file is truncated to its previous size.
bool append(QFile* file, const QByteArray& lines) {
    if (!file->open(QIODevice::ReadWrite)) return false;
    const qint64 size = file->size();
    QByteArray text = lines;
    if (size == 0) {
        text.prepend(kHeader);
    } else if (!file->seek(size - 1) || file->read(1) != "\n") {
        text.prepend('\n');  // ends a line that an earlier program left incomplete
    }
    if (file->seek(size) && file->write(text) == text.size() && file->flush()) return true;
    file->resize(size);
    return false;
}

}  // namespace

bool appendHistory(const QString& folder, const ServiceReport& report) {
    QByteArray lines;
    for (const ReportedCamera& camera : report.cameras)
        lines += lineOf(report, camera);
    const QString path = folder + "/history.csv";
    QFile file(path);
    // Opening a pipe would block until another process reads from it.
    const bool possible = QDir().mkpath(folder) && (!QFileInfo::exists(path) || QFileInfo(path).isFile());
    if (possible && append(&file, lines)) return true;
    qCritical("%s: the history of calibrations cannot be continued: %s", qUtf8Printable(path),
              qUtf8Printable(file.errorString()));
    return false;
}

}  // namespace fieldcal
