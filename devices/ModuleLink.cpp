#include "devices/ModuleLink.h"

#include <QCoreApplication>

#include <utility>

namespace fieldcal {
namespace {

struct Outcome {
    bool succeeded = false;
    std::int32_t status = KX_STATUS_OK;
};

const char* userMessage(std::int32_t status) {
    switch (status) {
        case KX_STATUS_FAILED:
            return QT_TRANSLATE_NOOP("Interface", "A KXAPI call failed.");
        case KX_STATUS_NOT_CALIBRATED:
            return QT_TRANSLATE_NOOP("Interface",
                                     "The device has not been calibrated or has invalid calibration data.");
        case KX_STATUS_DEVICE_ERROR:
            return QT_TRANSLATE_NOOP("Interface", "Something bad has happened with the Tarnex Deepvane camera.");
        case KX_STATUS_DEVICE_BUSY:
            return QT_TRANSLATE_NOOP(
                "Interface", "Please close all Tarnex Deepvane applications and any web browsers before proceeding.");
        case KX_STATUS_FIRMWARE_TOO_OLD:
            return QT_TRANSLATE_NOOP(
                "Interface",
                "Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update "
                "your firmware and run the application again.");
        default:
            return QT_TRANSLATE_NOOP("Interface", "An unknown error has occured.");
    }
}

/// `libraryText`: the library's own text for `status`.
StatusNotice statusNotice(std::int32_t status, const QString& libraryText) {
    if (status == KX_STATUS_NO_DEVICE) return {true, QString()};
    const QString form = QStringLiteral("%1 - %2");
    return {false, form.arg(libraryText, QCoreApplication::translate("Interface", userMessage(status)))};
}

}  // namespace

ModuleLink::~ModuleLink() {
    close();
}

void ModuleLink::use(std::shared_ptr<const KXLibrary> library, std::shared_ptr<const KXRotationUpdater> updater) {
    library_ = std::move(library);
    updater_ = std::move(updater);
}

ModuleLink::Creation ModuleLink::createDevice() {
    const auto created = std::make_shared<KXDevice*>(nullptr);
    const auto ending =
        calls_.run([library = library_, created] { *created = library->create(0); }, limits_.call, stop_);
    if (ending == WatchedCalls::Ending::Overdue) reportNoAnswer();
    faulted_ = faulted_ || ending != WatchedCalls::Ending::Returned;
    if (faulted_) return Creation::GivenUp;
    if (*created == nullptr) return Creation::NoDevice;
    // The deleter holds the library, so that the library's code outlives the device.
    device_.reset(*created, [library = library_](KXDevice* last) { library->destroy(last); });
    return Creation::Done;
}

void ModuleLink::close() {
    releaseWithin(std::move(device_), limits_.call, stopRequested());
}

bool ModuleLink::make(std::function<bool()> call, std::chrono::milliseconds limit, bool quietly) {
    if (device_ == nullptr || (faulted_ && !quietly)) return false;
    const auto outcome = std::make_shared<Outcome>();
    const auto watched = [device = device_, call = std::move(call), outcome] {
        outcome->succeeded = call();
        // The status is read immediately and on the same thread: it is that of the last call and may be specific to the
        // thread.
        if (!outcome->succeeded) outcome->status = device->lastStatus();
    };
    switch (calls_.run(watched, limit, stop_)) {
        case WatchedCalls::Ending::Returned:
            if (!outcome->succeeded && !quietly) {
                reportFault(outcome->status, QString::fromUtf8(library_->statusString(outcome->status)));
            }
            return outcome->succeeded;
        case WatchedCalls::Ending::Overdue:
            if (!faulted_ && !quietly) reportNoAnswer();
            break;
        case WatchedCalls::Ending::Stopped:
            break;
    }
    faulted_ = true;
    return false;
}

void ModuleLink::reportInvalidCalibration() {
    if (faulted_) return;
    reportFault(KX_STATUS_NOT_CALIBRATED, QString::fromUtf8(library_->statusString(KX_STATUS_NOT_CALIBRATED)));
}

void ModuleLink::reportNoAnswer() {
    reportFault(QT_TRANSLATE_NOOP("Interface", "The camera does not answer"));
}

void ModuleLink::reportFault(const char* what) {
    reportFault(KX_STATUS_OK, QCoreApplication::translate("Interface", what));
}

void ModuleLink::reportFault(std::int32_t status, const QString& libraryText) {
    faulted_ = true;
    const StatusNotice notice = statusNotice(status, libraryText);
    faultText_ = notice.missingDevice ? libraryText : notice.text;
    report_(notice);
}

}  // namespace fieldcal
