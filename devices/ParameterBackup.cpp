#include "devices/ParameterBackup.h"

#include "camera/Rotation.h"
#include "files/SafeFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <string>

namespace fieldcal {
namespace {

constexpr char kMagic[] = "FCBACKUP";
constexpr std::uint32_t kVersion = 1;
constexpr int kHeaderBytes = 32;
constexpr int kBlockBytes = static_cast<int>(sizeof(KXCalibRectParameters));
constexpr int kHashBytes = 32;
constexpr int kFileBytes = kHeaderBytes + kBlockBytes + kHashBytes;
constexpr double kRotationTolerance = 1e-3;              // a factory may store fewer digits than this program
constexpr qint64 kLatestMilliseconds = 253402300799999;  // end of the year 9999

QByteArray hashOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

template <typename Number>
void append(QByteArray* bytes, Number number) {
    char raw[sizeof(Number)];
    qToLittleEndian(number, raw);
    bytes->append(raw, sizeof(raw));
}

QByteArray encoded(const ParameterBackup& backup) {
    QByteArray bytes(kMagic, 8);
    append<quint32>(&bytes, kVersion);
    append<quint32>(&bytes, backup.serial);
    append<qint64>(&bytes, backup.taken.toMSecsSinceEpoch());
    append<quint32>(&bytes, kBlockBytes);
    append<quint32>(&bytes, 0);
    bytes.append(reinterpret_cast<const char*>(&backup.block), kBlockBytes);
    return bytes + hashOf(bytes);
}

/// Returns null when the bytes are a backup, otherwise the fault.
QString decode(const QByteArray& bytes, ParameterBackup* out) {
    const auto number = [&](int at) { return qFromLittleEndian<quint32>(bytes.constData() + at); };
    if (!bytes.startsWith(kMagic)) return "it is no backup of a parameter block";
    if (bytes.size() < 12 || number(8) != kVersion) return "version: only version 1 is known";
    if (bytes.size() != kFileBytes) {
        return QString("length: %1 bytes instead of %2").arg(bytes.size()).arg(kFileBytes);
    }
    if (hashOf(bytes.left(kFileBytes - kHashBytes)) != bytes.right(kHashBytes)) return "checksum: the file is damaged";
    const auto milliseconds = qFromLittleEndian<qint64>(bytes.constData() + 16);
    if (number(24) != kBlockBytes || number(28) != 0) return "block length: 2048 expected";
    if (milliseconds < 0 || milliseconds > kLatestMilliseconds) return "date: out of range";
    out->serial = number(12);
    out->taken = QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
    std::memcpy(&out->block, bytes.constData() + kHeaderBytes, sizeof(out->block));
    const char* wrong = matrixThatIsNoRotation(out->block, true, false);
    return wrong != nullptr ? QString("%1: not a rotation").arg(wrong) : QString();
}

bool refuse(const QString& file, const QString& reason, QString* why) {
    *why = file + ": " + reason;
    return false;
}

}  // namespace

const char* matrixThatIsNoRotation(const KXCalibRectParameters& block, bool withThird, bool withPlatform) {
    if (!isRotation(widened(block.rectificationInfrared), kRotationTolerance)) return "infrared rectification";
    if (withThird && !isRotation(widened(block.rectificationThird), kRotationTolerance)) return "third rectification";
    if (withPlatform && !isRotation(widened(block.rectificationPlatform), kRotationTolerance))
        return "platform rectification";
    return nullptr;
}

bool keepBackup(const QString& folder, const ParameterBackup& backup, QString* file, QString* why) {
    std::string reason;
    if (!makeFolders(folder.toStdString(), &reason)) {
        *why = QString::fromStdString(reason);
        return false;
    }
    const QString stem =
        folder + '/' + QString::number(backup.serial) + backup.taken.toUTC().toString("'-'yyyyMMdd'T'HHmmsszzz'Z'");
    QString free = stem + ".fcbackup";
    for (int i = 2; QFile::exists(free); ++i)
        free = stem + '-' + QString::number(i) + ".fcbackup";
    if (!writeBackup(free, backup, why)) return false;
    *file = free;
    return true;
}

bool writeBackup(const QString& file, const ParameterBackup& backup, QString* why) {
    if (QFile::exists(file)) return refuse(file, "there is a file already", why);
    const QByteArray bytes = encoded(backup);
    std::string reason;
    if (!fieldcal::writeFile(file.toStdString(), bytes.constData(), static_cast<std::size_t>(bytes.size()), &reason)) {
        *why = QString::fromStdString(reason);
        QFile::remove(file);  // which was not there, and may not stay
        return false;
    }
    QFile written(file);
    if (!written.open(QIODevice::ReadOnly) || written.readAll() != bytes) {
        written.remove();
        return refuse(file, "it does not hold what was written", why);
    }
    return true;
}

bool readBackup(const QString& file, ParameterBackup* out, QString* why) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) return refuse(file, source.errorString(), why);
    ParameterBackup backup;
    // One extra byte detects a longer file without reading a huge one.
    const QString reason = decode(source.read(kFileBytes + 1), &backup);
    if (!reason.isEmpty()) return refuse(file, reason, why);
    *out = backup;
    return true;
}

}  // namespace fieldcal
