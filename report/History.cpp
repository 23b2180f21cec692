#include "report/History.h"

#include "engine/Rotation.h"
#include "files/SafeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cmath>
#include <string>

namespace fieldcal {
namespace {

constexpr char kHeader[] =
    "time,serial,camera,before_x_deg,before_y_deg,before_z_deg,after_x_deg,after_y_deg,after_z_deg,"
    "deviation_x_deg,deviation_y_deg,deviation_z_deg,proof_stored_px,proof_new_px,result\n";

constexpr const char* kStored = "stored";  ///< the result of a save that succeeded
constexpr qint64 kLargestHistory = 64 << 20;
constexpr int kFirstYear = 2020;           ///< before this program; a computer's clock without a battery begins earlier
constexpr qint64 kLongestEnd = 256 << 10;  ///< of the history, in which its newest lines are searched
enum Column { kTime, kSerial, kCamera, kBefore, kAfter = 6, kProof = 12, kResult = 14 };

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

std::optional<ColourCamera> cameraNamed(const QByteArray& name) {
    for (const ColourCamera camera : kColourCameras)
        if (name == nameOf(camera)) return camera;
    return std::nullopt;
}

std::optional<double> numberIn(const QList<QByteArray>& fields, int column) {
    bool isNumber = false;
    const double number = fields[column].toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<Eigen::Matrix3d> rotationIn(const QList<QByteArray>& fields, int column) {
    Eigen::Vector3d anglesRad;
    for (int i = 0; i < 3; ++i) {
        const std::optional<double> angle = numberIn(fields, column + i);
        if (!angle) return std::nullopt;
        anglesRad[i] = *angle / vq::kDegreesPerRadian;
    }
    return vq::rotationFromAngles(anglesRad);
}

/// None for a line that is not complete.
std::optional<HistoryEntry> entryIn(const QByteArray& line) {
    const QList<QByteArray> fields = line.split(',');
    if (fields.size() <= kResult) return std::nullopt;
    HistoryEntry entry;
    bool isSerial = false;
    entry.time = QDateTime::fromString(QString::fromLatin1(fields[kTime]), Qt::ISODate);
    entry.serial = fields[kSerial].toUInt(&isSerial);
    const std::optional<ColourCamera> camera = cameraNamed(fields[kCamera]);
    const auto before = rotationIn(fields, kBefore), after = rotationIn(fields, kAfter);
    if (!entry.time.isValid() || !isSerial || !camera || !before || !after) return std::nullopt;
    entry.camera = *camera;
    entry.turnDeg = turnDeg(*before, *after);
    const std::optional<double> storedPx = numberIn(fields, kProof), newPx = numberIn(fields, kProof + 1);
    if (storedPx && newPx) entry.proof = HistoryEntry::Proof{*storedPx, *newPx};
    entry.stored = fields[kResult] == kStored;
    return entry;
}

/// Returns the last lines, in up to `length` bytes; none when the history cannot be read or is implausibly large.
QList<QByteArray> lastLines(const QString& folder, qint64 length) {
    QFile file(folder + "/history.csv");
    if (!QFileInfo(file).isFile() || file.size() > kLargestHistory || !file.open(QIODevice::ReadOnly)) return {};
    const bool cut = file.size() > length && file.seek(file.size() - length);
    QList<QByteArray> lines = file.readAll().split('\n');
    if (cut) lines.removeFirst();
    return lines;
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
    QDateTime last;
    for (const QByteArray& line : lastLines(folder, kLargestHistory)) {
        const std::optional<HistoryEntry> entry = entryIn(line);
        if (entry && entry->stored && entry->serial == serial) last = entry->time;
    }
    return isPossible(last) ? last : QDateTime();
}

std::vector<HistoryEntry> newestOfHistory(const QString& folder, std::size_t count) {
    std::vector<HistoryEntry> newest;
    const QList<QByteArray> lines = lastLines(folder, kLongestEnd);
    for (auto line = lines.rbegin(); line != lines.rend() && newest.size() < count; ++line)
        if (const std::optional<HistoryEntry> entry = entryIn(*line)) newest.push_back(*entry);
    return newest;
}

}  // namespace fieldcal
