#include "devices/CalibrationWriter.h"

#include "devices/BlockFields.h"
#include "devices/ParameterBackup.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace fieldcal {
namespace {

using Block = KXCalibRectParameters;
using Bytes = BlockBytes;
using Flash = WriteBackReport::Flash;

/// Largest difference between a rotation that the module reports and the one written: several roundings to 32 bits.
constexpr double kReportedTolerance = 1e-5;

constexpr const char* kNotKept =
    QT_TRANSLATE_NOOP("Interface", "The camera said that it stored the calibration, but it did not");
constexpr const char* kImagesDisagree =
    QT_TRANSLATE_NOOP("Interface", "The camera's images do not fit the new calibration");

Bytes matrixBytes() {
    Bytes bytes;
    for (const std::size_t start : {offsetof(Block, rectificationInfrared), offsetof(Block, rectificationThird),
                                    offsetof(Block, rectificationPlatform)}) {
        for (std::size_t i = 0; i < sizeof(Block::rectificationInfrared); ++i)
            bytes.set(start + i);
    }
    return bytes;
}

void logBytes(const char* what, const Bytes& bytes) {
    if (bytes.none()) return;
    qWarning("%s %d bytes, the first one at %d", what, static_cast<int>(bytes.count()),
             static_cast<int>(bytes._Find_first()));
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

CalibrationWriter::CalibrationWriter(ModuleLink& link, KXThirdCamera* third, std::uint32_t serial, QString backupFolder)
    : link_(link), third_(third), serial_(serial), backupFolder_(std::move(backupFolder)), counting_(matrixBytes()) {}

/// A camera whose rotation is unchanged keeps its words in the flash, because composing them again would add a rounding
/// error with every save.
bool CalibrationWriter::writeRotations(const StoredRotations& present, const StoredRotations& wanted) {
    const bool third = wanted.third != present.third;
    const bool platform = present.platform && wanted.platform != present.platform;
    const auto rectifies = [&](const Block& block, const char* which, QString* why) {
        const char* wrong = matrixThatIsNoRotation(block, third, platform);
        if (wrong != nullptr) {
            *why = QString("The %1 parameter block cannot be used: its %2 is no rotation").arg(which, wrong);
        }
        return wrong == nullptr;
    };
    const auto makeWanted = [&](QString* why) {
        if (!rectifies(previous_, "present", why)) return false;
        wanted_ = previous_;
        const KXRotationUpdater& updater = *link_.rotationUpdater();
        if ((!third || turn(updater.updateThirdCamera, wanted.third, previous_.rectificationThird)) &&
            (!platform || turn(updater.updatePlatformCamera, *wanted.platform, previous_.rectificationPlatform))) {
            return rectifies(wanted_, "new", why);
        }
        *why = link_.faultText();
        return false;
    };
    rotations_ = wanted;
    return run(makeWanted);
}

bool CalibrationWriter::restore(const Block& block) {
    return run([&](QString* why) { return adoptBlock(block, why); });
}

bool CalibrationWriter::rewrite() {
    alsoUnchanged_ = true;
    return run([this](QString* why) { return adoptBlock(previous_, why); });
}

bool CalibrationWriter::adoptBlock(const Block& block, QString* why) {
    wanted_ = block;
    const KXRotationUpdater& updater = *link_.rotationUpdater();
    for (const auto function : {updater.updateThirdCamera, updater.updatePlatformCamera}) {
        const auto fields = rotationFields(link_, function, block);
        if (!fields) {
            *why = link_.faultText();
            return false;
        }
        counting_ |= *fields;
    }
    return true;
}

bool CalibrationWriter::run(const std::function<bool(QString* why)>& makeWanted) {
    if (!prepare(makeWanted)) {
        resume();
        return false;
    }
    if (!alsoUnchanged_ && differences(wanted_, previous_).none()) {
        qInfo("The camera holds this calibration already. Nothing is written.");
        report_.flash = Flash::Written;
        return resume() && reportsWanted();
    }
    const bool stored = write() && readAgain() && holdsWanted() && resume() && readAgain() && holdsWanted() &&
                        reportsWanted() && imagesAgree();
    if (!stored) {
        putBack();
        resume();
        readQuietly();
        if (report_.reason.isEmpty()) report_.reason = link_.faultText();
        qCritical("The calibration was not stored: %s", qUtf8Printable(report_.reason));
    }
    qInfo("%s", qUtf8Printable(flashText(report_)));
    return stored;
}

/// Until this function has succeeded, nothing is sent to the flash.
bool CalibrationWriter::prepare(const std::function<bool(QString* why)>& makeWanted) {
    KXDevice* device = link_.device().get();
    if (!link_.ask([device] { return device->stopCapture(); })) return failed();
    resting_ = true;
    const auto present = link_.read(device, &KXDevice::rectParameters);
    if (!present) return failed();
    previous_ = *present;
    QString why;
    const ParameterBackup backup{serial_, QDateTime::currentDateTimeUtc(), previous_};
    if (!keepBackup(backupFolder_, backup, &report_.backupFile, &why)) {
        return refuse("The present calibration could not be kept: " + why);
    }
    qInfo("The present calibration is kept in %s", qUtf8Printable(report_.backupFile));
    if (!makeWanted(&why)) return refuse(why);
    access_ = link_.ask([device] { return device->privateInterface(); });
    return access_ != nullptr ? announce() : failed();
}

/// Sets one camera's rotation in the wanted block, expressed between the raw frames as the companion library expects
/// it.
bool CalibrationWriter::turn(KXUpdateRotationFunction function, const Rotation& rotation, const float* rectifyColour) {
    const auto fields = rotationFields(link_, function, wanted_);
    const Matrix3 raw = rawRotation(rotation, rectifyColour, previous_.rectificationInfrared);
    const auto out = fields ? turned(link_, function, raw, wanted_) : std::nullopt;
    if (!out) return false;
    const Bytes meant = *fields & ~matrixBytes();
    logBytes("Outside of the rotation the companion library changed", differences(wanted_, *out) & ~meant);
    counting_ |= *fields;
    wanted_ = *out;
    return true;
}

bool CalibrationWriter::announce() {
    QString why;
    const BlockChange change = BlockChange::between(previous_, wanted_, counting_);
    return !beforeWrite_ || beforeWrite_(change, report_.backupFile, &why) ||
           refuse("Nothing is written to the camera: " + why);
}

bool CalibrationWriter::write() {
    KXPrivate* access = access_;
    const auto sent = std::make_shared<const Block>(wanted_);
    if (link_.askPatiently([access, sent] { return access->writeRectParameters(sent.get(), true); }) &&
        link_.askPatiently([access] { return access->commitCalibration(); })) {
        return true;
    }
    readQuietly();
    return false;
}

bool CalibrationWriter::readAgain() {
    const auto found = link_.read(link_.device().get(), &KXDevice::rectParameters);
    if (found) {
        judge(*found);
    } else {
        readQuietly();
    }
    return found.has_value();
}

/// Determines the content of the flash after a failure that has been reported.
void CalibrationWriter::readQuietly() {
    KXDevice* device = link_.device().get();
    const auto found = link_.askQuietly([device] { return ModuleLink::filled(device, &KXDevice::rectParameters); });
    report_.flash = Flash::Unknown;
    if (found) judge(*found);
}

void CalibrationWriter::judge(const Block& found) {
    const Bytes unlikeWanted = differences(found, wanted_);
    if ((unlikeWanted & counting_).none()) {
        report_.flash = Flash::Written;
        if (!std::exchange(differencesLogged_, true)) {
            logBytes("The module keeps the block with changes of its own:", unlikeWanted);
        }
    } else {
        report_.flash = (differences(found, previous_) & counting_).none() ? Flash::Previous : Flash::Other;
    }
}

/// The flash is read back, because successful calls do not prove that it holds the block.
bool CalibrationWriter::holdsWanted() {
    return report_.flash == Flash::Written || notKept();
}

/// Compares the rotations that the module reports after reloading the block.
bool CalibrationWriter::reportsWanted() {
    if (!rotations_) return true;
    const auto third = link_.read(third_, &KXThirdCamera::zToThirdExtrinsics);
    if (!reports("in-module", third, rotations_->third, wanted_.rectificationThird)) return false;
    if (!rotations_->platform) return true;
    const auto reported = link_.ask([device = link_.device().get()]() -> std::optional<KXCalibExtrinsics> {
        KXPlatformCamera* camera = device->platformCamera();
        if (camera == nullptr) return std::nullopt;
        return ModuleLink::filled(camera, &KXPlatformCamera::zToPlatformExtrinsics);
    });
    return reports("out-of-module", reported, *rotations_->platform, wanted_.rectificationPlatform);
}

/// The library cancels the rectification matrices by their transposes, which is exact only as far as they are
/// orthonormal: a factory may store fewer digits.
bool CalibrationWriter::reports(const char* which, const std::optional<KXCalibExtrinsics>& reported,
                                const Rotation& wanted, const float* rectifyColour) {
    if (!reported) return failed();
    const double tolerance =
        kReportedTolerance + 2 * (departureFromOrthonormal(widened(wanted_.rectificationInfrared)) +
                                  departureFromOrthonormal(widened(rectifyColour)));
    const bool same = std::equal(wanted.begin(), wanted.end(), reported->rotation,
                                 [tolerance](float a, float b) { return std::abs(a - b) <= tolerance; });
    if (same) return true;
    const float* r = reported->rotation;
    qCritical("The camera's %s rotation is now [%f %f %f; %f %f %f; %f %f %f], which is not what was written.", which,
              r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], r[8]);
    return notKept();
}

bool CalibrationWriter::imagesAgree() {
    return !rotations_ || !afterWrite_ || afterWrite_() || disagrees(kImagesDisagree);
}

/// Called after a failure that has been reported. A module that holds and reports the new block, or that holds the
/// previous one, is left unchanged.
void CalibrationWriter::putBack() {
    const bool disagrees = disagrees_ && report_.flash != Flash::Previous;
    if (!disagrees && (report_.flash != Flash::Other || !resting_)) return;
    qCritical("The camera keeps something else than what was written; putting the previous block back.");
    KXDevice* device = link_.device().get();
    if (!std::exchange(resting_, true)) link_.askQuietly([device] { return device->stopCapture(); });
    KXPrivate* access = access_;
    const auto sent = std::make_shared<const Block>(previous_);
    link_.askQuietlyAndPatiently(
        [access, sent] { return access->writeRectParameters(sent.get(), true) && access->commitCalibration(); });
}

/// A module that has failed is left as it is; only its streams are started again, as they may recover.
bool CalibrationWriter::resume() {
    if (!std::exchange(resting_, false)) return true;
    const auto call = [device = link_.device().get()] { return device->resumeDevice(); };
    return link_.faulted() ? link_.askQuietly(call) : link_.ask(call);
}

bool CalibrationWriter::notKept() {
    return disagrees(kNotKept);
}

bool CalibrationWriter::disagrees(const char* reason) {
    disagrees_ = true;
    report_.reason = reason;
    link_.reportFault(reason);
    return false;
}

/// Records a failure that the link has already reported. Returns false.
bool CalibrationWriter::failed() {
    report_.reason = link_.faultText();
    return false;
}

bool CalibrationWriter::refuse(const QString& reason) {
    report_.reason = reason;
    qCritical("%s", qUtf8Printable(reason));
    return false;
}

}  // namespace fieldcal
