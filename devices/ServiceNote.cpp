#include "devices/ServiceNote.h"

#include "files/SafeFile.h"

#include <QFile>
#include <QFileInfo>

#include <string>

namespace fieldcal {
namespace {

constexpr std::uint32_t kAutomatic = 2;
constexpr std::uint32_t kOnDemand = 3;
constexpr qint64 kLargestNote = 16;

}  // namespace

bool ServiceNote::keep(std::uint32_t startType, QString* why) const {
    if (file_.isEmpty()) return true;
    const std::string text = std::to_string(startType) + '\n';
    std::string reason;
    const bool written = makeFolders(QFileInfo(file_).path().toStdString(), &reason) &&
                         writeFile(file_.toStdString(), text.data(), text.size(), &reason);
    *why = QString::fromStdString(reason);
    if (!written) qCritical("%s", reason.c_str());
    return written;
}

std::optional<std::uint32_t> ServiceNote::kept() const {
    QFile file(file_);
    if (file_.isEmpty() || !file.exists()) return std::nullopt;
    const bool opened = file.open(QIODevice::ReadOnly);
    const std::uint32_t startType = opened ? file.read(kLargestNote).trimmed().toUInt() : 0;
    if (startType == kAutomatic || startType == kOnDemand) return startType;
    qCritical("%s: it does not name a start type", qUtf8Printable(file_));
    return std::nullopt;
}

void ServiceNote::drop() const {
    std::string why;
    if (file_.isEmpty() || removeFile(file_.toStdString(), &why)) return;
    qCritical("%s", why.c_str());
}

}  // namespace fieldcal
