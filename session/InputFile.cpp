#include "session/InputFile.h"

#include "session/Refusal.h"

#include <QFileInfo>

namespace fieldcal::session {

bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why) {
    file->setFileName(QString::fromStdString(name));
    const QFileInfo info(*file);
    if (info.exists() && !info.isFile()) return refuse(why, name, key, "not a regular file");
    if (!file->open(QIODevice::ReadOnly)) return refuse(why, name, key, file->errorString().toStdString());
    return file->size() <= largestBytes ||
           refuse(why, name, key, "larger than " + std::to_string(largestBytes >> 20) + " MiB");
}

}  // namespace fieldcal::session
