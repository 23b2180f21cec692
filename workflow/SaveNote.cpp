#include "workflow/SaveNote.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace fieldcal {
namespace {

constexpr int kVersion = 1;
constexpr qint64 kLargestNote = 65536;

QString path(const QString& folder) {
    return folder + "/save-note.json";
}

bool complain(const QString& folder, const QString& what) {
    qCritical("%s: %s", qUtf8Printable(path(folder)), qUtf8Printable(what));
    return false;
}

}  // namespace

bool writeSaveNote(const QString& folder, const SaveNote& note) {
    const QJsonObject object{{"version", kVersion},
                             {"serial", static_cast<double>(note.serial)},
                             {"begun", note.begun.toUTC().toString(Qt::ISODateWithMs)},
                             {"reason", note.reason},
                             {"flash", note.flash},
                             {"backup", note.backupFile}};
    const QByteArray text = QJsonDocument(object).toJson();
    QSaveFile file(path(folder));
    const bool written =
        QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
    return written || complain(folder, file.errorString());
}

bool removeSaveNote(const QString& folder) {
    QFile file(path(folder));
    return !file.exists() || file.remove() || complain(folder, file.errorString());
}

std::optional<SaveNote> readSaveNote(const QString& folder) {
    QFile file(path(folder));
    if (!file.exists()) return std::nullopt;
    SaveNote note;
    if (!file.open(QIODevice::ReadOnly)) {
        complain(folder, file.errorString());
        return note;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.read(kLargestNote)).object();
    if (object["version"].toInt() != kVersion) {
        complain(folder, "it is no note that this program can read");
        return note;
    }
    note.serial = object["serial"].toVariant().toUInt();
    note.begun = QDateTime::fromString(object["begun"].toString(), Qt::ISODateWithMs);
    note.reason = object["reason"].toString();
    note.flash = object["flash"].toString();
    note.backupFile = object["backup"].toString();
    return note;
}

}  // namespace fieldcal
