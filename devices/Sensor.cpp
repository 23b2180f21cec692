#include "devices/Sensor.h"

#include "devices/StatusCheck.h"

#include <QCoreApplication>

#include <utility>

namespace fieldcal {
namespace {

/// While somebody waits for the program to end.
constexpr std::chrono::milliseconds kHastyReleaseLimit{600};

}  // namespace

Sensor::Sensor() : Sensor(systemEnvironment()) {}

Sensor::Sensor(SensorEnvironment environment) : environment_(std::move(environment)) {}

Sensor::~Sensor() {
    release(std::move(platformCamera_));
    release(std::move(device_));
    PXMServiceManager& services = *environment_.services;
    if (!services.restorePXMService()) emit signal_reportKXAPIError(services.lastError());
    services.setStopFlag(nullptr);
}

/// A camera that does not let go must not keep the service from being restored.
void Sensor::release(std::shared_ptr<void> last) {
    if (last == nullptr) return;
    const auto held = std::make_shared<std::shared_ptr<void>>(std::move(last));
    calls_.run([held] { held->reset(); }, stopRequested() ? kHastyReleaseLimit : environment_.callLimit, nullptr);
}

void Sensor::setStopFlag(const std::atomic<bool>* stop) {
    stop_ = stop;
    environment_.services->setStopFlag(stop);
}

bool Sensor::grab(bool wait) {
    platformNv12_ = nullptr;
    if (!opened_ || faulted_) return false;
    const auto grabAndCopy = [device = device_.get(), third = third_, frames = frames_, s = settings_, wait] {
        if (!device->grab(wait)) return false;
        frames->refresh(*device, third, s);
        return true;
    };
    if (!ask(grabAndCopy)) return false;
    if (settings_.usePlatformCamera && !fetchPlatformPicture()) {
        if (stopRequested()) return false;
        emit signal_reportPlatformCameraIssue();
    }
    platformPicture_.deliver(settings_.platformScaledWidth, settings_.platformScaledHeight,
                             &frames_->records.outOfModuleColour);
    return true;
}

bool Sensor::fetchPlatformPicture() {
    if (platformCamera_ == nullptr) return false;
    if (!platformCamera_->frameReady()) return false;
    if (!platformPictureWanted_ || platformCalibration_.rectificationTable.empty()) return true;
    platformPicture_.fetch(*platformCamera_, platformCalibration_, library_->rectifyBGRA8ToBGRA8, environment_.now());
    platformNv12_ = platformPicture_.nv12();
    return !platformPicture_.hasDied();
}

bool Sensor::setEmitter(bool on) {
    KXEmitterControl* emitter = nullptr;
    return findEmitter(&emitter) && emitter != nullptr && switchEmitter(emitter, on);
}

bool Sensor::findEmitter(KXEmitterControl** out) {
    const auto found = std::make_shared<KXEmitterControl*>(nullptr);
    const bool asked = ask([device = device_.get(), found] {
        *found = device->emitterControl();
        return true;
    });
    *out = *found;
    return asked;
}

bool Sensor::switchEmitter(KXEmitterControl* emitter, bool on) {
    if (!ask([emitter, on] { return emitter->setEmitter(on); })) return false;
    qInfo("Emitter is %s.", on ? "enabled" : "disabled");
    return true;
}

bool Sensor::checkStatus(bool callSucceeded) {
    if (callSucceeded) return true;
    if (faulted_) return false;
    const std::int32_t status = device_ != nullptr ? device_->lastStatus() : 0;
    reportFault(status, statusString(status));
    return false;
}

WatchedCalls::Ending Sensor::watch(std::function<void()> call) {
    const WatchedCalls::Ending ending = calls_.run(std::move(call), environment_.callLimit, stop_);
    faulted_ = faulted_ || ending != WatchedCalls::Ending::Returned;
    return ending;
}

bool Sensor::ask(std::function<bool()> call) {
    if (faulted_ || device_ == nullptr) return false;
    const auto succeeded = std::make_shared<bool>(false);
    const auto ending = watch([device = device_, call = std::move(call), succeeded] { *succeeded = call(); });
    if (ending == WatchedCalls::Ending::Returned) return checkStatus(*succeeded);
    if (ending == WatchedCalls::Ending::Overdue) reportNoAnswer();
    return false;
}

bool Sensor::askQuietly(std::function<bool()> call) {
    if (device_ == nullptr) return false;
    const auto succeeded = std::make_shared<bool>(false);
    const auto ending = watch([device = device_, call = std::move(call), succeeded] { *succeeded = call(); });
    return ending == WatchedCalls::Ending::Returned && *succeeded;
}

void Sensor::reportInvalidCalibration() {
    if (!faulted_) reportFault(KX_STATUS_NOT_CALIBRATED, statusString(KX_STATUS_NOT_CALIBRATED));
}

QString Sensor::statusString(std::int32_t status) const {
    return library_ != nullptr ? QString::fromUtf8(library_->statusString(status)) : QString();
}

void Sensor::reportNoAnswer() {
    reportFault(QT_TRANSLATE_NOOP("Interface", "The camera does not answer"));
}

void Sensor::reportFault(const char* what) {
    reportFault(KX_STATUS_OK, QCoreApplication::translate("Interface", what));
}

void Sensor::reportFault(std::int32_t status, const QString& libraryText) {
    faulted_ = true;
    const StatusNotice notice = statusNotice(status, libraryText);
    faultText_ = notice.missingDevice ? libraryText : notice.text;
    if (notice.missingDevice) {
        emit signal_reportMissingQ550Device();
    } else {
        emit signal_reportKXAPIError(notice.text);
    }
}

void Sensor::setThirdScaledSize(std::int32_t width, std::int32_t height) {
    settings_.thirdScaledWidth = width;
    settings_.thirdScaledHeight = height;
}

void Sensor::usePlatformCalibration(PlatformCalibration calibration, std::int32_t scaledWidth,
                                    std::int32_t scaledHeight) {
    platformCalibration_ = std::move(calibration);
    settings_.platformScaledWidth = scaledWidth;
    settings_.platformScaledHeight = scaledHeight;
}

void Sensor::setRotationsInFlash(const Rotation& third, const std::optional<Rotation>& platform) {
    rotationsInFlash_ = RotationsInFlash{third, platform};
}

void Sensor::disablePlatformCamera() {
    settings_.usePlatformCamera = false;
    platformNv12_ = nullptr;
    release(std::move(platformCamera_));
}

}  // namespace fieldcal
