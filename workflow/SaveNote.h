#pragma once

#include "devices/BlockChange.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// That a calibration was to be stored. It stands on disk from before the write until the module has confirmed it; a
/// note that is found at a start means that a save did not come to its end, and the module's block says how far it
/// came.
struct SaveNote {
    std::uint32_t serial = 0;
    QDateTime begun;
    QString reason;                     ///< why it failed; empty when the program ended before it knew
    QString flash;                      ///< what the module said its flash held
    QString backupFile;                 ///< the block that was there before; may be empty
    std::optional<BlockChange> change;  ///< none: nothing had been sent to the flash
};

/// All take the program's data folder, in which each module has a note of its own. Writing and removing give false
/// after logging why; after writing, note and folder are on the disk.
bool writeSaveNote(const QString& folder, const SaveNote& note);
bool removeSaveNote(const QString& folder, std::uint32_t serial);
/// None without a note. One that cannot be read is logged and counts as an empty note: something was not stored.
std::optional<SaveNote> readSaveNote(const QString& folder, std::uint32_t serial);

}  // namespace fieldcal
