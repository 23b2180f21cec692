#include "session/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace fieldcal::session {

bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason) {
    if (why == nullptr) return false;
    *why = file + ": " + (key.empty() ? std::string() : key + ": ") + reason;
    for (char& c : *why) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = '?';
    }
    return false;
}

bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why) {
    file->setFileName(QString::fromStdString(name));
    const QFileInfo info(*file);
    if (info.exists() && !info.isFile()) return refuse(why, name, key, "not a regular file");
    if (!file->open(QIODevice::ReadOnly)) return refuse(why, name, key, file->errorString().toStdString());
    return file->size() <= largestBytes ||
           refuse(why, name, key, "larger than " + std::to_string(largestBytes >> 20) + " MiB");
}

bool writeOutput(const std::string& name, const void* bytes, std::size_t size, std::string* why) {
    QSaveFile file(QString::fromStdString(name));
    const auto length = static_cast<qint64>(size);
    if (file.open(QIODevice::WriteOnly) && file.write(static_cast<const char*>(bytes), length) == length &&
        file.commit()) {
        return true;
    }
    return refuse(why, name, {}, file.errorString().toStdString());
}

bool makeFolder(const std::string& folder, std::string* why) {
    return QDir().mkpath(QString::fromStdString(folder)) || refuse(why, folder, {}, "the folder cannot be created");
}

}  // namespace fieldcal::session
