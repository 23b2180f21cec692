#pragma once

#include "kxapi/KXAPI.h"

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace fieldcal {

/// A copy of a module's parameter block with the time at which it was taken. File, little-endian, 2112 bytes:
/// "FCBACKUP", version (uint32, 1), serial number (uint32), UTC milliseconds since 1970 (int64), length of the block
/// (uint32, 2048), zero (uint32), the block, and the SHA-256 of all preceding bytes.
struct ParameterBackup {
    std::uint32_t serial = 0;
    QDateTime taken;
    KXCalibRectParameters block{};
};

/// Writes a new file into `folder`, which is created if needed: a temporary file is written, synced and renamed, its
/// folder is synced, and the file is read back. `file` receives its path, made of the serial number and the date.
/// Returns false with the reason in `why`
/// ("FILE: reason").
bool keepBackup(const QString& folder, const ParameterBackup& backup, QString* file, QString* why);

/// Writes to the given path, at which no file may exist.
bool writeBackup(const QString& file, const ParameterBackup& backup, QString* why);

/// Returns false with `why` ("FILE: what: reason"), and leaves `out` unchanged, unless the whole file is valid.
bool readBackup(const QString& file, ParameterBackup* out, QString* why);

/// Returns the name of a matrix of the block that is not a rotation; null when all are. The infrared matrix is always
/// checked. A module without a platform camera may hold anything in that camera's place, so reading a backup does not
/// check it.
const char* matrixThatIsNoRotation(const KXCalibRectParameters& block, bool withThird, bool withPlatform);

}  // namespace fieldcal
