#include "workflow/Saving.h"

#include "workflow/BaselineMemory.h"
#include "workflow/EstimateCheck.h"

namespace fieldcal {
namespace {

/// Returns the parameter block of the open module. A failure is not reported as an error, because a module that does
/// not provide its block may work in every other respect.
std::optional<KXCalibRectParameters> presentBlock(Sensor& sensor) {
    const std::shared_ptr<KXDevice> device = sensor.device();
    if (device == nullptr) return std::nullopt;
    return sensor.link().askQuietly(
        [device = device.get()] { return ModuleLink::filled(device, &KXDevice::rectParameters); });
}

LastSave::Outcome outcomeOf(BlockChange::Held held) {
    switch (held) {
        case BlockChange::Held::Wanted:
            return LastSave::Outcome::Stored;
        case BlockChange::Held::Previous:
            return LastSave::Outcome::NotStored;
        case BlockChange::Held::Neither:
            break;
    }
    return LastSave::Outcome::Neither;
}

/// Compares each estimated rotation with fresh images. Images that show nothing do not contradict.
bool imagesAgree(Sensor& sensor, const PerColourCamera<std::optional<Rotation>>& estimated, const QString& dataFolder) {
    const double baselineM = BaselineMemory(dataFolder).find(sensor.serialNumber()).value_or(0);
    for (const ColourCamera camera : kColourCameras) {
        const bool isUsed = camera == ColourCamera::Third || sensor.settings().usePlatformCamera;
        if (!isUsed || !estimated[camera]) continue;
        const auto check = checkEstimate(sensor, camera, *estimated[camera], baselineM);
        if (!check) {
            qInfo("Fresh images do not show whether the new rotation of the %s camera fits.", nameOf(camera));
            continue;
        }
        qInfo("Fresh images show the %s camera %.3f degrees from the rotation found; they agree up to %.3f.",
              nameOf(camera), check->offsetDeg, check->toleranceDeg);
        if (!check->contradicts()) continue;
        qCritical("The %s camera does not work with its new rotation.", nameOf(camera));
        return false;
    }
    return true;
}

}  // namespace

SaveResult storeRotations(Sensor& sensor, const PerColourCamera<Rotation>& wanted,
                          const PerColourCamera<std::optional<Rotation>>& estimated, const QString& dataFolder) {
    SaveNote note{sensor.serialNumber(), QDateTime::currentDateTimeUtc(), {}, {}, {}, {}, true};
    bool noted = writeSaveNote(dataFolder, note);
    const auto beforeWrite = [&](const BlockChange& change, const QString& backupFile, QString* why) {
        note.change = change;
        note.backupFile = backupFile;
        const bool written = writeSaveNote(dataFolder, note);
        noted = noted || written;
        *why = "The note about it cannot be kept in " + dataFolder;
        return written;
    };
    const auto afterWrite = [&] { return imagesAgree(sensor, estimated, dataFolder); };
    if (sensor.updateRotation(wanted[ColourCamera::Third], wanted[ColourCamera::Platform], beforeWrite, afterWrite)) {
        removeSaveNote(dataFolder, note.serial);
        return {true, true};
    }
    note.reason = sensor.writeBack().reason;
    note.flash = flashText(sensor.writeBack());
    note.backupFile = sensor.writeBack().backupFile;
    // When this fails, the earlier note stays: it is less detailed, but still correct.
    const bool complete = writeSaveNote(dataFolder, note);
    return {false, complete || noted};
}

SaveResult storeCalibration(Sensor& sensor, const CalibrationRecords& records, const QString& dataFolder) {
    PerColourCamera<Rotation> wanted;
    PerColourCamera<std::optional<Rotation>> estimated;
    for (const ColourCamera camera : kColourCameras) {
        wanted[camera] = records.toStore(camera);
        if (records.accepted(camera)) estimated[camera] = records.estimated(camera);
    }
    const SaveResult result =
        records.anyAccepted()
            ? storeRotations(sensor, wanted, estimated, dataFolder)
            : SaveResult{sensor.updateRotation(wanted[ColourCamera::Third], wanted[ColourCamera::Platform]), true};
    if (!result.stored) qInfo("Failed to store calibration information to flash.");
    return result;
}

QString lastSaveText(const LastSave& last) {
    switch (last.outcome) {
        case LastSave::Outcome::Stored:
            return "The last calibration is stored in the camera, although its save did not come to its end.";
        case LastSave::Outcome::Neither:
            return "The camera holds neither the last calibration nor the one before, which is kept in " +
                   last.note.backupFile;
        case LastSave::Outcome::NotStored:
            break;
    }
    return QString("The last calibration was not stored: %1 %2").arg(last.note.reason, last.note.flash).trimmed();
}

std::optional<LastSave> settleLastSave(Sensor& sensor, const QString& dataFolder) {
    const std::uint32_t serial = sensor.serialNumber();
    const std::optional<SaveNote> note = readSaveNote(dataFolder, serial);
    if (!note) return std::nullopt;
    if (!note->isWhole) {
        qWarning("What became of the last save is not known, as the note about it cannot be read.");
        removeSaveNote(dataFolder, serial);
        return std::nullopt;
    }
    LastSave last{LastSave::Outcome::NotStored, *note};
    if (note->change) {
        const auto block = presentBlock(sensor);
        if (!block) {
            qWarning("What became of the last save is not known, as the camera does not tell its parameter block.");
            return std::nullopt;
        }
        last.outcome = outcomeOf(note->change->heldIn(*block));
    }
    removeSaveNote(dataFolder, serial);
    qInfo("%s", qUtf8Printable(lastSaveText(last)));
    return last;
}

}  // namespace fieldcal
