#include "session/Files.h"

#include <QFileInfo>

namespace fieldcal::session {

namespace {

bool refuseLine(std::string* why, const std::string& line) {
    if (why == nullptr) return false;
    *why = line;
    for (char& c : *why) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = '?';
    }
    return false;
}

}  // namespace

bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason) {
    return refuseLine(why, file + ": " + (key.empty() ? std::string() : key + ": ") + reason);
}

bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why) {
    file->setFileName(QString::fromStdString(name));
    const QFileInfo info(*file);
    if (info.exists() && !info.isFile()) return refuse(why, name, key, "not a regular file");
    if (!file->open(QIODevice::ReadOnly)) return refuse(why, name, key, file->errorString().toStdString());
    return file->size() <= largestBytes ||
           refuse(why, name, key, "larger than " + std::to_string(largestBytes >> 20) + " MiB");
}

bool writeOutput(const std::string& name, const void* bytes, std::size_t size, std::string* why,
                 Durability durability) {
    std::string reason;
    return fieldcal::writeFile(name, bytes, size, &reason, durability) || refuseLine(why, reason);
}

bool makeFolder(const std::string& folder, std::string* why) {
    std::string reason;
    return makeFolders(folder, &reason) || refuseLine(why, reason);
}

}  // namespace fieldcal::session
