#include "workflow/SaveNote.h"

#include "files/SafeFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <string>

namespace fieldcal {
namespace {

constexpr int kVersion = 1;
constexpr qint64 kLargestNote = 65536;

QString path(const QString& folder, std::uint32_t serial) {
    return folder + "/save-note-" + QString::number(serial) + ".json";
}

bool complain(const std::string& why) {
    qCritical("%s", why.c_str());
    return false;
}

bool complain(const QFile& file, const QString& what) {
    return complain((file.fileName() + ": " + what).toStdString());
}

QJsonObject objectOf(const BlockChange& change) {
    return {{"bytes", QString::fromLatin1(change.counting.toHex())},
            {"previous", QString::fromLatin1(change.previous.toHex())},
            {"wanted", QString::fromLatin1(change.wanted.toHex())}};
}

std::optional<BlockChange> changeOf(const QJsonObject& object) {
    const auto bytes = [&](const char* key) { return QByteArray::fromHex(object[key].toString().toLatin1()); };
    BlockChange change{bytes("bytes"), bytes("previous"), bytes("wanted")};
    return change.isWhole() ? std::optional(change) : std::nullopt;
}

}  // namespace

bool writeSaveNote(const QString& folder, const SaveNote& note) {
    QJsonObject object{{"version", kVersion},
                       {"serial", static_cast<double>(note.serial)},
                       {"begun", note.begun.toUTC().toString(Qt::ISODateWithMs)},
                       {"reason", note.reason},
                       {"flash", note.flash},
                       {"backup", note.backupFile}};
    if (note.change) object.insert("block", objectOf(*note.change));
    const std::string text = QJsonDocument(object).toJson().toStdString();
    std::string why;
    return (makeFolders(folder.toStdString(), &why) &&
            writeFile(path(folder, note.serial).toStdString(), text.data(), text.size(), &why)) ||
           complain(why);
}

bool removeSaveNote(const QString& folder, std::uint32_t serial) {
    std::string why;
    return removeFile(path(folder, serial).toStdString(), &why) || complain(why);
}

std::optional<SaveNote> readSaveNote(const QString& folder, std::uint32_t serial) {
    QFile file(path(folder, serial));
    if (!file.exists()) return std::nullopt;
    SaveNote note;
    note.serial = serial;
    note.isWhole = false;
    if (!file.open(QIODevice::ReadOnly)) {
        complain(file, file.errorString());
        return note;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.read(kLargestNote)).object();
    if (object["version"].toInt() != kVersion) {
        complain(file, "it is no note that this program can read");
        return note;
    }
    note.begun = QDateTime::fromString(object["begun"].toString(), Qt::ISODateWithMs);
    note.reason = object["reason"].toString();
    note.flash = object["flash"].toString();
    note.backupFile = object["backup"].toString();
    note.change = changeOf(object["block"].toObject());
    note.isWhole = note.change || !object.contains("block");
    return note;
}

}  // namespace fieldcal
