#include "devices/FlashRewrite.h"

#include "devices/ParameterBackup.h"

#include <utility>

namespace fieldcal {
namespace {

using Flash = WriteBackReport::Flash;

constexpr const char* kNotKept =
    QT_TRANSLATE_NOOP("Interface", "The camera said that it stored the calibration, but it did not");

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
    if (!prepare(change)) {
        resume();
        return false;
    }
    const bool stored = write() && keeps() && resume() && readAgain() && keeps();
    if (!stored) {
        putBackWhatArrivedWrong();
        resume();
        if (report_.reason.isEmpty()) report_.reason = sensor_.faultText();
        qCritical("The calibration was not stored: %s", qUtf8Printable(report_.reason));
    }
    qInfo("%s", qUtf8Printable(flashText(report_)));
    return stored;
}

/// Up to here nothing has been sent to the flash.
bool FlashRewrite::prepare(const Change& change) {
    KXDevice* device = sensor_.device().get();
    if (!sensor_.ask([device] { return device->stopCapture(); })) return failed();
    resting_ = true;
    if (!sensor_.read(device, &KXDevice::rectParameters, &previous_)) return failed();
    QString why;
    const ParameterBackup backup{sensor_.serialNumber(), QDateTime::currentDateTimeUtc(), previous_};
    if (!keepBackup(backupFolder_, backup, &report_.backupFile, &why)) {
        return refuse("The present calibration could not be kept: " + why);
    }
    qInfo("The present calibration is kept in %s", qUtf8Printable(report_.backupFile));
    if (!change(previous_, &wanted_, &why)) return refuse(why);
    const auto found = std::make_shared<KXPrivate*>(nullptr);
    const auto find = [device, found] { return (*found = device->privateInterface()) != nullptr; };
    if (!sensor_.ask(find)) return failed();
    access_ = *found;
    return true;
}

bool FlashRewrite::write() {
    KXPrivate* access = access_;
    const auto sent = std::make_shared<const KXCalibRectParameters>(wanted_);
    const bool called = sensor_.ask([access, sent] { return access->writeRectParameters(sent.get(), true); }) &&
                        sensor_.ask([access] { return access->commitCalibration(); });
    if (called) return readAgain();
    readQuietly();
    return false;
}

bool FlashRewrite::readAgain() {
    KXCalibRectParameters found{};
    if (sensor_.read(sensor_.device().get(), &KXDevice::rectParameters, &found)) {
        report_.flash = compare(found);
        return true;
    }
    readQuietly();
    return false;
}

void FlashRewrite::readQuietly() {
    const auto found = std::make_shared<KXCalibRectParameters>();
    KXDevice* device = sensor_.device().get();
    const bool known = sensor_.askQuietly([device, found] { return device->rectParameters(found.get()); });
    report_.flash = known ? compare(*found) : Flash::Unknown;
}

/// All calls have succeeded; whether the block is there is another matter.
bool FlashRewrite::keeps() {
    if (report_.flash == Flash::Written) return true;
    report_.reason = kNotKept;
    sensor_.reportFault(kNotKept);
    return false;
}

/// Before anything is loaded from it. What went wrong has been reported.
void FlashRewrite::putBackWhatArrivedWrong() {
    if (report_.flash != Flash::Other || !resting_) return;
    qCritical("The camera's flash holds something else than what was written; putting the previous block back.");
    KXPrivate* access = access_;
    const auto sent = std::make_shared<const KXCalibRectParameters>(previous_);
    sensor_.askQuietly(
        [access, sent] { return access->writeRectParameters(sent.get(), true) && access->commitCalibration(); });
    readQuietly();
}

/// A module that has failed is left as it is, except for its pictures, which may come back.
bool FlashRewrite::resume() {
    if (!std::exchange(resting_, false)) return true;
    KXDevice* device = sensor_.device().get();
    const auto call = [device] { return device->resumeDevice(); };
    return sensor_.faulted() ? sensor_.askQuietly(call) : sensor_.ask(call);
}

Flash FlashRewrite::compare(const KXCalibRectParameters& block) const {
    if (sameBytes(block, wanted_)) return Flash::Written;
    return sameBytes(block, previous_) ? Flash::Previous : Flash::Other;
}

/// The sensor has reported it.
bool FlashRewrite::failed() {
    report_.reason = sensor_.faultText();
    return false;
}

bool FlashRewrite::refuse(const QString& reason) {
    report_.reason = reason;
    qCritical("%s", qUtf8Printable(reason));
    return false;
}

}  // namespace fieldcal
