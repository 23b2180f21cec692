#pragma once

#include "devices/Sensor.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/SaveNote.h"

#include <QString>

namespace fieldcal {

/// How a save went.
struct SaveResult {
    bool stored = false;  ///< the module has confirmed the rotations
    bool told = true;     ///< it has, or a note on the disk says at the next start that it has not
};

/// Writes the rotations into the module. A note stands in `dataFolder` from before the write until the module has
/// confirmed them. Before the first call that reaches the flash, the note tells by what the block is known again, and
/// is on the disk together with the backup; where that fails, nothing is written.
SaveResult storeRotations(Sensor& sensor, const Rotation& third, const Rotation& platform, const QString& dataFolder);

/// Writes each camera's accepted rotation, or the factory's. There is a note while something accepted is at stake.
SaveResult storeCalibration(Sensor& sensor, const CalibrationRecords& records, const QString& dataFolder);

/// What became of a save that did not come to its end.
struct LastSave {
    enum class Outcome {
        NotStored,  ///< the module holds the previous calibration
        Stored,     ///< it holds the one that was to be stored
        Neither     ///< it holds another one
    };
    Outcome outcome = Outcome::NotStored;
    SaveNote note;
};

/// One line for logs and the command line.
QString lastSaveText(const LastSave& last);

/// Looks for a note about the open module, decides by the block that the module holds, and removes the note. None:
/// there is no note, or the block cannot be read now; then the note waits for the next start.
std::optional<LastSave> settleLastSave(Sensor& sensor, const QString& dataFolder);

}  // namespace fieldcal
