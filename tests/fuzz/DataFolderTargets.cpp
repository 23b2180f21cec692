#include "devices/ParameterBackup.h"
#include "devices/ServiceNote.h"
#include "engine/CalibrationState.h"
#include "report/History.h"
#include "tests/fuzz/Target.h"
#include "workflow/BaselineMemory.h"
#include "workflow/SaveNote.h"

#include <QCryptographicHash>
#include <QDir>

namespace fieldcal::fuzz {
namespace {

constexpr std::uint32_t kSerial = 7;
constexpr int kHashBytes = 32;

void backup(const QByteArray& bytes) {
    put("one.fcbackup", bytes);
    ParameterBackup read;
    QString why;
    if (!readBackup("one.fcbackup", &read, &why)) return requireRefusal(why.toStdString(), "one.fcbackup");
    require(matrixThatIsNoRotation(read.block, true, false) == nullptr && read.taken.isValid(), "it can be restored");
    QFile::remove("two.fcbackup");
    require(writeBackup("two.fcbackup", read, &why), "what was read can be written");
    require(contentOf("two.fcbackup") == bytes, "nothing is lost on the way");
}

QByteArray backupWithHash(QByteArray bytes) {
    bytes.chop(kHashBytes);
    return bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

void saveNote(const QByteArray& bytes) {
    put("save-note-7.json", bytes);
    const std::optional<SaveNote> note = readSaveNote(".", kSerial);
    require(note && note->serial == kSerial, "a note that is there is never overlooked");
    if (!note->isWhole) return;
    if (note->change) note->change->heldIn(KXCalibRectParameters{});
    require(writeSaveNote(".", *note), "what was read can be written");
    const std::optional<SaveNote> again = readSaveNote(".", kSerial);
    require(again && again->isWhole && again->change.has_value() == note->change.has_value(), "it stays whole");
    require(!note->change ||
                (again->change->counting == note->change->counting && again->change->wanted == note->change->wanted &&
                 again->change->previous == note->change->previous),
            "the digests are written and read exactly");
}

void serviceNote(const QByteArray& bytes) {
    put("note", bytes);
    const auto note = serviceNoteInFile("note");
    const std::optional<std::uint32_t> kept = note->kept();
    if (!kept) return;
    QString why;
    require(isRunnableStartType(*kept), "the service can run with what is kept");
    require(note->keep(*kept, &why) && contentOf("note") == bytes, "only exactly what was written is read");
}

void history(const QByteArray& bytes) {
    put("history.csv", bytes);
    lastStored(".", kSerial);
    ServiceReport report;
    report.time = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9), Qt::UTC);
    report.serial = kSerial;
    report.cameras.emplace_back();
    report.write = ReportedWrite{true, {}, {}, {}};
    require(appendHistory(".", report), "every history can be continued");
    require(contentOf("history.csv").startsWith(bytes), "no line is lost");
    require(lastStored(".", kSerial) == report.time, "the new line is found behind whatever was there");
}

void baselines(const QByteArray& bytes) {
    put("stereo-baselines.txt", bytes);
    const BaselineMemory memory(".");
    const std::optional<double> before = memory.find(kSerial);
    require(!before || (*before >= 0.015 && *before <= 0.2), "a baseline is plausible");
    memory.remember(kSerial, 0.0551);
    const std::optional<double> after = memory.find(kSerial);
    require(after && std::abs(*after - 0.0551) < 1e-6, "the new baseline is found among whatever was there");
}

void state(const QByteArray& bytes) {
    put("state", bytes);
    vq::CalibrationState read;
    require(read.readFromFile("state") == (bytes.size() == 200), "a state is known by its length");
    if (bytes.size() != 200) return;
    require(read.writeToFile("copy") && contentOf("copy") == bytes, "nothing is lost on the way");
}

}  // namespace

std::vector<Target> dataFolderTargets() {
    return {{"backup", backup, backupWithHash}, {"save-note", saveNote},
            {"service-note", serviceNote},      {"history", history},
            {"baselines", baselines},           {"state", state}};
}

}  // namespace fieldcal::fuzz
