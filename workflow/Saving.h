#pragma once

#include "devices/Sensor.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/SaveNote.h"

#include <QString>

namespace fieldcal {

/// The outcome of a save.
struct SaveResult {
    bool stored = false;   ///< the module has confirmed the rotations
    bool reported = true;  ///< confirmed, or a note on the disk will report the failure at the next start
};

/// Writes the rotations into the module, and compares the module's next images with `estimated`, the rotation that each
/// calibrated camera was found to have before the user adjusted it. A note is kept in `dataFolder` from before the
/// write until the module has confirmed them. Before the first call that reaches the flash, the note identifies the old
/// and the new block and is on the disk together with the backup; if that fails, nothing is written.
SaveResult storeRotations(Sensor& sensor, const PerColourCamera<Rotation>& wanted,
                          const PerColourCamera<std::optional<Rotation>>& estimated, const QString& dataFolder);

/// Writes each camera's accepted rotation, or the factory's. A note is kept only if any rotation was accepted.
SaveResult storeCalibration(Sensor& sensor, const CalibrationRecords& records, const QString& dataFolder);

/// The outcome of a save that was interrupted.
struct LastSave {
    enum class Outcome {
        NotStored,  ///< the module holds the previous calibration
        Stored,     ///< the module holds the calibration that was to be stored
        Neither     ///< the module holds a different one
    };
    Outcome outcome = Outcome::NotStored;
    SaveNote note;
};

/// One line for logs and the command line.
QString lastSaveText(const LastSave& last);

/// Looks for a note about the open module, determines the outcome from the block that the module holds, and removes the
/// note. Returns none when there is no note, when it is damaged, which is logged, or when the block cannot be read;
/// only in the last case the note is kept for the next start.
std::optional<LastSave> settleLastSave(Sensor& sensor, const QString& dataFolder);

}  // namespace fieldcal
