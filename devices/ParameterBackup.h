#pragma once

#include "kxapi/KXAPI.h"

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace fieldcal {

/// A module's parameter block as it was at some moment. File, little-endian, 2112 bytes: "FCBACKUP", version (uint32,
/// 1), serial number (uint32), UTC milliseconds since 1970 (int64), length of the block (uint32, 2048), zero (uint32),
/// the block, and the SHA-256 of all that.
struct ParameterBackup {
    std::uint32_t serial = 0;
    QDateTime taken;
    KXCalibRectParameters block{};
};

/// Writes a new file into `folder`, which is created: a temporary file, synced, renamed, its folder
/// synced, and read again. `file`
/// gets its path, made of the serial number and the date. False, and `why` ("FILE: reason").
bool keepBackup(const QString& folder, const ParameterBackup& backup, QString* file, QString* why);

/// Writes to the given path, which must not exist yet.
bool writeBackup(const QString& file, const ParameterBackup& backup, QString* why);

/// False, `why` ("FILE: what: reason") and `out` untouched unless every byte makes sense.
bool readBackup(const QString& file, ParameterBackup* out, QString* why);

/// The name of a matrix of the block that is not a rotation; null when all are. The infrared one always counts. A
/// module that knows no platform camera may hold anything in that camera's place, so a backup is read without judging
/// it.
const char* matrixThatIsNoRotation(const KXCalibRectParameters& block, bool withThird, bool withPlatform);

}  // namespace fieldcal
