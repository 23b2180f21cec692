#include "devices/Sensor.h"

#include "devices/StatusCheck.h"

#include <utility>

namespace fieldcal {
namespace {

constexpr std::chrono::milliseconds kReleaseLimit{500};

}

Sensor::Sensor() : Sensor(systemEnvironment()) {}

Sensor::Sensor(SensorEnvironment environment) : environment_(std::move(environment)) {}

Sensor::~Sensor() {
    platformCamera_.reset();
    releaseDevice();
    PXMServiceManager& services = *environment_.services;
    if (!services.restorePXMService()) emit signal_reportKXAPIError(services.lastError());
    services.setStopFlag(nullptr);
}

/// A module that does not let go must not keep the service from being restored.
void Sensor::releaseDevice() {
    if (device_ == nullptr) return;
    const auto last = std::make_shared<std::shared_ptr<KXDevice>>(std::move(device_));
    calls_.run([last] { last->reset(); }, kReleaseLimit, nullptr);
}

void Sensor::setStopFlag(const std::atomic<bool>* stop) {
    stop_ = stop;
    environment_.services->setStopFlag(stop);
}

bool Sensor::grab(bool wait) {
    platformNv12_ = nullptr;
    if (!opened_ || faulted_) return false;
    if (!ask([device = device_.get(), wait] { return device->grab(wait); })) return false;
    if (settings_.usePlatformCamera && !fetchPlatformPicture()) {
        if (stopRequested()) return false;
        emit signal_reportPlatformCameraIssue();
    }
    frames_.refresh(*device_, third_, settings_);
    platformPicture_.deliver(settings_.platformScaledWidth, settings_.platformScaledHeight,
                             &frames_.records.outOfModuleColour);
    return true;
}

bool Sensor::fetchPlatformPicture() {
    if (platformCamera_ == nullptr) return false;
    if (!std::exchange(firstPictureAwaited_, true)) platformCamera_->awaitFirstFrame(stop_);
    if (!platformCamera_->frameReady()) return false;
    if (!platformPictureWanted_ || platformCalibration_.rectificationTable.empty()) return true;
    platformPicture_.fetch(*platformCamera_, platformCalibration_, library_->rectifyBGRA8ToBGRA8, environment_.now());
    platformNv12_ = platformPicture_.nv12();
    return true;
}

bool Sensor::setEmitter(bool on) {
    if (faulted_ || device_ == nullptr) return false;
    KXEmitterControl* emitter = device_->emitterControl();
    return emitter != nullptr && switchEmitter(*emitter, on);
}

bool Sensor::switchEmitter(KXEmitterControl& emitter, bool on) {
    if (!ask([&emitter, on] { return emitter.setEmitter(on); })) return false;
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

bool Sensor::ask(std::function<bool()> call) {
    if (faulted_ || device_ == nullptr) return false;
    const auto succeeded = std::make_shared<bool>(false);
    const auto watched = [device = device_, call = std::move(call), succeeded] { *succeeded = call(); };
    switch (calls_.run(watched, environment_.callLimit, stop_)) {
        case WatchedCalls::Ending::Returned:
            return checkStatus(*succeeded);
        case WatchedCalls::Ending::Stopped:
            faulted_ = true;
            return false;
        case WatchedCalls::Ending::Overdue:
            break;
    }
    reportFault(KX_STATUS_OK, "The camera does not answer");
    return false;
}

void Sensor::reportInvalidCalibration() {
    if (!faulted_) reportFault(KX_STATUS_NOT_CALIBRATED, statusString(KX_STATUS_NOT_CALIBRATED));
}

QString Sensor::statusString(std::int32_t status) const {
    return library_ != nullptr ? QString::fromUtf8(library_->statusString(status)) : QString();
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
    platformCamera_.reset();
}

}  // namespace fieldcal
