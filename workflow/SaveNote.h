#pragma once

#include "devices/BlockChange.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// A note that a calibration is about to be stored. It is on the disk from before the write until the module has
/// confirmed the calibration. A note found at program start means that a save failed or was interrupted; the module's
/// parameter block shows how far the save came.
struct SaveNote {
    std::uint32_t serial = 0;
    QDateTime begun;
    QString reason;                     ///< reason of the failure; empty when the program ended before it was known
    QString flash;                      ///< content of the flash as far as the module reported it
    QString backupFile;                 ///< backup of the previous block; may be empty
    std::optional<BlockChange> change;  ///< none: nothing had been sent to the flash yet
    bool isWhole = true;                ///< false: the note cannot be read, and nothing but the serial number is known
};

/// All functions take the program's data folder, which holds one note for each module. Writing and removing return
/// false after logging the reason. After writing, the note and its folder are on the disk.
bool writeSaveNote(const QString& folder, const SaveNote& note);
bool removeSaveNote(const QString& folder, std::uint32_t serial);
/// Returns none when there is no note. A note that cannot be read is logged and returned as not whole.
std::optional<SaveNote> readSaveNote(const QString& folder, std::uint32_t serial);

}  // namespace fieldcal
