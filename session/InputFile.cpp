#include "session/InputFile.h"

#include <QFileInfo>

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

}  // namespace fieldcal::session
