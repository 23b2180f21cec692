#include "tools/ResultFile.h"

#include "session/Files.h"
#include "tools/Console.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstdio>
#include <utility>

namespace fieldcal {
namespace {

/// Returns whether the new file replaces the one of this name. Devices and pipes are written to directly.
bool canBeReplaced(const QString& path) {
    const QFileInfo info(path);
    return !path.startsWith("/dev/") && (!info.exists() || info.isFile());
}

bool writeInto(QFile* file, const QByteArray& bytes) {
    return file->write(bytes) == bytes.size() && file->flush();
}

}  // namespace

ResultFile::ResultFile(QString path, const QString& recording, ColourCamera camera, unsigned seed)
    : path_(std::move(path)),
      origin_{{"schema", kResultSchema},
              {"program", FIELDCAL_VERSION},
              {"recording", QDir(recording).absolutePath()},
              {"camera", nameOf(camera)},
              {"seed", static_cast<qint64>(seed)}} {}

bool ResultFile::write(const CalibrationReport& report, QString* why) const {
    return write(reportJson(report), why);
}

int ResultFile::fail(const QString& error, const CalibrationReport* report) const {
    const bool touchedFlash = report != nullptr && report->written.has_value();
    QJsonObject object = touchedFlash ? reportJson(*report) : QJsonObject{{"solved", false}};
    object.insert("error", error);
    QString why;
    write(std::move(object), &why);
    return fieldcal::fail(error);
}

bool ResultFile::write(QJsonObject object, QString* why) const {
    if (path_.isEmpty()) return true;
    for (auto key = origin_.begin(); key != origin_.end(); ++key)
        object.insert(key.key(), key.value());
    object.insert("time", QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    if (cameras_) {
        object.insert("serial", static_cast<qint64>(cameras_->serial));
        object.insert("cameras", camerasJson(*cameras_));
    }
    return writeFile(path_, QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n', why);
}

bool writeFile(const QString& path, const QByteArray& bytes, QString* why) {
    if (path != "-" && canBeReplaced(path)) {
        std::string reason;
        const bool written = session::writeOutput(path.toStdString(), bytes.constData(),
                                                  static_cast<std::size_t>(bytes.size()), &reason);
        *why = QString::fromStdString(reason);
        return written;
    }
    QFile file(path);
    const bool opened = path == "-" ? file.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    if (opened && writeInto(&file, bytes)) return true;
    *why = path + ": " + file.errorString();
    return false;
}

}  // namespace fieldcal
