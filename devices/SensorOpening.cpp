// The open sequence of `Sensor`. Each step either succeeds or has reported why not.
#include "devices/PlatformCameraSetup.h"
#include "devices/Sensor.h"

#include <utility>

namespace fieldcal {
namespace {

constexpr std::int32_t kAnyDevice = -1;
constexpr std::int32_t kBothImagers = 3;
constexpr std::int32_t kHardwareOptionValue = 16;
constexpr std::int32_t kDepthFramesPerSecond = 60;
constexpr std::int32_t kThirdFramesPerSecond = 30;

const char* textOf(const char* libraryText) {
    return libraryText != nullptr ? libraryText : "";
}

}  // namespace

bool Sensor::open(SensorSettings settings) {
    if (std::exchange(openTried_, true)) return false;
    settings_ = settings;
    opened_ = shutDownService() && loadLibrary() && (!settings_.usePlatformCamera || openPlatformCamera()) &&
              createDevice() && identifyDevice() && configureDepth() && configureThird() && configureHardware() &&
              configureEmitter() && startStreams();
    return opened_;
}

bool Sensor::shutDownService() {
    PXMServiceManager& services = *environment_.services;
    if (services.shutdownPXMService()) return true;
    if (!stopRequested()) emit signal_reportKXAPIError(services.lastError());
    return false;
}

bool Sensor::loadLibrary() {
    std::string why;
    library_ = environment_.loadLibrary(&why);
    if (library_ != nullptr) return true;
    qCritical("%s", why.c_str());
    emit signal_reportMissingQ550Device();
    return false;
}

bool Sensor::openPlatformCamera() {
    platformCamera_ = environment_.createPlatformCamera(library_);
    switch (setUpPlatformCamera(*platformCamera_)) {
        case PlatformSetup::Ready:
            return true;
        case PlatformSetup::Missing:
            emit signal_reportMissingPlatformCamera();
            return false;
        case PlatformSetup::Issue:
            emit signal_reportPlatformCameraIssue();
            return false;
    }
    return false;
}

bool Sensor::createDevice() {
    KXDevice* device = library_->create(0);
    if (device == nullptr) {
        qCritical("The library KXAPI did not create a device.");
        emit signal_reportMissingQ550Device();
        return false;
    }
    // The deleter holds the library, so that its code outlives the device.
    device_.reset(device, [library = library_](KXDevice* last) { library->destroy(last); });
    qInfo("KXAPI allocated. Opening device...");
    if (!checkStatus(device_->openDevice(kAnyDevice))) return false;
    qInfo("Q550 device opened.");
    third_ = device_->thirdCamera();
    hardware_ = device_->hardwareControl();
    return checkStatus(device_->initDevice());
}

bool Sensor::identifyDevice() {
    std::uint32_t serial = 0;
    if (!checkStatus(device_->serialNumber(&serial))) return false;
    qInfo("Sensor firmware version: %s", textOf(device_->firmwareVersionText()));
    qInfo("Sensor software version: %s", textOf(device_->softwareVersionText()));
    qInfo("Sensor camera serial no: %u", serial);
    if (!device_->calibrationValid()) qCritical("Calibration data on camera is invalid.");
    return true;
}

bool Sensor::configureDepth() {
    return checkStatus(device_->setDepthEnabled(settings_.depthEnabled)) &&
           checkStatus(device_->setLeftEnabled(settings_.leftEnabled)) &&
           checkStatus(device_->setRightEnabled(settings_.rightEnabled)) &&
           checkStatus(device_->setStreamOption(settings_.streamOption)) &&
           checkStatus(device_->setDepthStreamMode(settings_.rectified, settings_.depthWidth, settings_.depthHeight,
                                                   kDepthFramesPerSecond, settings_.depthPixelFormat));
}

bool Sensor::configureThird() {
    if (third_ == nullptr || !settings_.thirdEnabled) {
        qInfo("Third failed !_third check. Could not detect in-module color sensor.");
        return false;
    }
    return checkStatus(third_->setThirdEnabled(true)) &&
           checkStatus(third_->setThirdStreamMode(settings_.rectified, settings_.thirdWidth, settings_.thirdHeight,
                                                  kThirdFramesPerSecond, settings_.thirdPixelFormat));
}

bool Sensor::configureHardware() {
    return checkStatus(hardware_ != nullptr) &&
           checkStatus(hardware_->setAutoExposure(kBothImagers, settings_.autoExposure)) &&
           checkStatus(hardware_->setHardwareOption(settings_.hardwareOption, kHardwareOptionValue));
}

bool Sensor::configureEmitter() {
    KXEmitterControl* emitter = device_->emitterControl();
    if (emitter == nullptr) return !settings_.emitterOn;
    return switchEmitter(*emitter, settings_.emitterOn);
}

bool Sensor::startStreams() {
    // A size that no camera has means that the library's answers cannot be trusted.
    if (!checkStatus(frames_.sizeRecords(*device_, *third_))) return false;
    if (!checkStatus(device_->startCapture())) return false;
    if (settings_.autoExposure) return true;
    return checkStatus(hardware_->setGain(settings_.gain, kBothImagers)) &&
           checkStatus(hardware_->setExposure(settings_.exposure, kBothImagers));
}

}  // namespace fieldcal
