#include "devices/ServiceNote.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace fieldcal {
namespace {

constexpr std::uint32_t kAutomatic = 2;
constexpr std::uint32_t kOnDemand = 3;
constexpr qint64 kLargestNote = 16;

}  // namespace

void ServiceNote::keep(std::uint32_t startType) const {
    if (file_.isEmpty()) return;
    const QByteArray text = QByteArray::number(startType) + '\n';
    QSaveFile file(file_);
    const bool written = QDir().mkpath(QFileInfo(file_).path()) && file.open(QIODevice::WriteOnly) &&
                         file.write(text) == text.size() && file.commit();
    if (!written) qCritical("%s: %s", qUtf8Printable(file_), qUtf8Printable(file.errorString()));
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
    QFile file(file_);
    if (file_.isEmpty() || !file.exists() || file.remove()) return;
    qCritical("%s: %s", qUtf8Printable(file_), qUtf8Printable(file.errorString()));
}

}  // namespace fieldcal
