#include "devices/ModuleLink.h"

#include <QCoreApplication>

#include <utility>

namespace fieldcal {
namespace {

struct Outcome {
    bool succeeded = false;
    std::int32_t status = KX_STATUS_OK;
};

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
    // The deleter holds the library, so that its code outlives the device.
    device_.reset(*created, [library = library_](KXDevice* last) { library->destroy(last); });
    return Creation::Done;
}

void ModuleLink::close() {
    letGo(std::move(device_), limits_.call, stopRequested());
}

bool ModuleLink::make(std::function<bool()> call, std::chrono::milliseconds limit, bool quietly) {
    if (device_ == nullptr || (faulted_ && !quietly)) return false;
    const auto outcome = std::make_shared<Outcome>();
    const auto watched = [device = device_, call = std::move(call), outcome] {
        outcome->succeeded = call();
        // At once and on the same thread: the status is that of the last call, and may be the thread's own.
        if (!outcome->succeeded) outcome->status = device->lastStatus();
    };
    switch (calls_.run(watched, limit, stop_)) {
        case WatchedCalls::Ending::Returned:
            if (!outcome->succeeded && !quietly) {
                reportFault(outcome->status, QString::fromUtf8(library_->statusString(outcome->status)));
            }
            return outcome->succeeded;
        case WatchedCalls::Ending::Overdue:
            if (!faulted_) reportNoAnswer();
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
