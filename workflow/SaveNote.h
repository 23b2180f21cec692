#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// That a calibration was to be stored. It stands on disk from before the write until the module has confirmed it; a
/// note that is found at a start means that the last calibration was not stored, whatever ended it.
struct SaveNote {
    std::uint32_t serial = 0;
    QDateTime begun;
    QString reason;      ///< why it failed; empty when the program ended before it knew
    QString flash;       ///< what the module said its flash held
    QString backupFile;  ///< the block that was there before; may be empty
};

/// All take the program's data folder. Writing and removing give false after logging why.
bool writeSaveNote(const QString& folder, const SaveNote& note);
bool removeSaveNote(const QString& folder);
/// None without a note. One that cannot be read is logged and counts as an empty note: something was not stored.
std::optional<SaveNote> readSaveNote(const QString& folder);

}  // namespace fieldcal
