#include "workflow/Saving.h"

#include "workflow/SaveNote.h"

namespace fieldcal {

bool storeCalibration(Sensor& sensor, const CalibrationRecords& records, const QString& dataFolder) {
    const bool matters = records.anyAccepted();
    SaveNote note{sensor.serialNumber(), QDateTime::currentDateTimeUtc(), {}, {}, {}};
    if (matters) writeSaveNote(dataFolder, note);
    const bool stored =
        sensor.updateRotation(records.toStore(ColourCamera::Third), records.toStore(ColourCamera::Platform));
    if (!stored) qInfo("Failed to store calibration information to flash.");
    if (!matters) return stored;
    if (stored) {
        removeSaveNote(dataFolder);
    } else {
        note.reason = sensor.writeBack().reason;
        note.flash = flashText(sensor.writeBack());
        note.backupFile = sensor.writeBack().backupFile;
        writeSaveNote(dataFolder, note);
    }
    return stored;
}

}  // namespace fieldcal
