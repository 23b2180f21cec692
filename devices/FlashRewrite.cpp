#include "devices/FlashRewrite.h"

#include "devices/ParameterBackup.h"

#include <cstring>
#include <utility>

namespace fieldcal {
namespace {

using Flash = WriteBackReport::Flash;

bool same(const KXCalibRectParameters& a, const KXCalibRectParameters& b) {
    return std::memcmp(&a, &b, sizeof(a)) == 0;
}

}  // namespace

QString flashText(const WriteBackReport& report) {
    switch (report.flash) {
        case Flash::Untouched:
            return "Nothing was written to the camera's flash.";
        case Flash::Previous:
            return "The camera's flash holds the previous calibration.";
        case Flash::Written:
            return "The camera's flash holds the new calibration.";
        case Flash::Other:
            return "The camera's flash holds neither the previous nor the new calibration. The previous one is in " +
                   report.backupFile;
        case Flash::Unknown:
            break;
    }
    return "It is not known what the camera's flash holds. The previous calibration is in " + report.backupFile;
}

FlashRewrite::FlashRewrite(Sensor& sensor, QString backupFolder, WriteBackReport* report)
    : sensor_(sensor), backupFolder_(std::move(backupFolder)), report_(*report) {}

bool FlashRewrite::run(const Change& change) {
    if (!prepare(change)) return false;
    const bool stored = write(wanted_) && confirm();
    if (!stored) {
        if (report_.reason.isEmpty()) report_.reason = sensor_.faultText();
        qCritical("The calibration was not stored: %s", qUtf8Printable(report_.reason));
    }
    qInfo("%s", qUtf8Printable(flashText(report_)));
    return stored;
}

/// Up to here nothing has been sent to the flash.
bool FlashRewrite::prepare(const Change& change) {
    KXDevice* device = sensor_.device().get();
    if (!sensor_.ask([device] { return device->stopCapture(); }) ||
        !sensor_.read(device, &KXDevice::rectParameters, &previous_)) {
        report_.reason = sensor_.faultText();
        return false;
    }
    QString why;
    const ParameterBackup backup{sensor_.serialNumber(), QDateTime::currentDateTimeUtc(), previous_};
    if (!keepBackup(backupFolder_, backup, &report_.backupFile, &why)) {
        return refuse("The present calibration could not be kept: " + why);
    }
    qInfo("The present calibration is kept in %s", qUtf8Printable(report_.backupFile));
    if (!change(previous_, &wanted_, &why)) return refuse(why);
    return true;
}

bool FlashRewrite::write(const KXCalibRectParameters& block) {
    KXDevice* device = sensor_.device().get();
    KXPrivate* access = device->privateInterface();
    if (!sensor_.checkStatus(access != nullptr)) return false;
    const auto sent = std::make_shared<const KXCalibRectParameters>(block);
    const bool called = sensor_.ask([access, sent] { return access->writeRectParameters(sent.get(), true); }) &&
                        sensor_.ask([access] { return access->commitCalibration(); }) &&
                        sensor_.ask([device] { return device->resumeDevice(); });
    KXCalibRectParameters found{};
    const bool known = called ? sensor_.read(device, &KXDevice::rectParameters, &found) : sensor_.readQuietly(&found);
    report_.flash = known ? compare(found) : Flash::Unknown;
    return called && known;
}

/// All calls have succeeded; whether the block is there is another matter.
bool FlashRewrite::confirm() {
    if (report_.flash == Flash::Written) return true;
    report_.reason = "The camera said that it stored the calibration, but it did not";
    if (report_.flash == Flash::Other) putBack();
    if (!sensor_.faulted()) sensor_.reportWriteNotKept(report_.reason);
    return false;
}

void FlashRewrite::putBack() {
    KXDevice* device = sensor_.device().get();
    qCritical("The camera's flash holds something else than what was written; putting the previous block back.");
    if (sensor_.ask([device] { return device->stopCapture(); })) write(previous_);
}

Flash FlashRewrite::compare(const KXCalibRectParameters& block) const {
    if (same(block, wanted_)) return Flash::Written;
    return same(block, previous_) ? Flash::Previous : Flash::Other;
}

bool FlashRewrite::refuse(const QString& reason) {
    report_.reason = reason;
    qCritical("%s", qUtf8Printable(reason));
    return false;
}

}  // namespace fieldcal
