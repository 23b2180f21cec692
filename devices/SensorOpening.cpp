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
    if (library_ != nullptr) updater_ = environment_.loadRotationUpdater(&why);
    if (updater_ != nullptr) return true;
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
    if (!ask([device] { return device->openDevice(kAnyDevice); })) return false;
    qInfo("Q550 device opened.");
    third_ = device_->thirdCamera();
    hardware_ = device_->hardwareControl();
    return ask([device] { return device->initDevice(); });
}

bool Sensor::identifyDevice() {
    if (!read(device_.get(), &KXDevice::serialNumber, &serialNumber_)) return false;
    qInfo("Sensor firmware version: %s", textOf(device_->firmwareVersionText()));
    qInfo("Sensor software version: %s", textOf(device_->softwareVersionText()));
    qInfo("Sensor camera serial no: %u", serialNumber_);
    if (!device_->calibrationValid()) qCritical("Calibration data on camera is invalid.");
    return true;
}

bool Sensor::configureDepth() {
    return ask([device = device_.get(), s = settings_] { return device->setDepthEnabled(s.depthEnabled); }) &&
           ask([device = device_.get(), s = settings_] { return device->setLeftEnabled(s.leftEnabled); }) &&
           ask([device = device_.get(), s = settings_] { return device->setRightEnabled(s.rightEnabled); }) &&
           ask([device = device_.get(), s = settings_] { return device->setStreamOption(s.streamOption); }) &&
           ask([device = device_.get(), s = settings_] {
               return device->setDepthStreamMode(s.rectified, s.depthWidth, s.depthHeight, kDepthFramesPerSecond,
                                                 s.depthPixelFormat);
           });
}

bool Sensor::configureThird() {
    if (third_ == nullptr || !settings_.thirdEnabled) {
        qInfo("Third failed !_third check. Could not detect in-module color sensor.");
        return false;
    }
    return ask([third = third_] { return third->setThirdEnabled(true); }) && ask([third = third_, s = settings_] {
               return third->setThirdStreamMode(s.rectified, s.thirdWidth, s.thirdHeight, kThirdFramesPerSecond,
                                                s.thirdPixelFormat);
           });
}

bool Sensor::configureHardware() {
    return checkStatus(hardware_ != nullptr) && ask([hardware = hardware_, s = settings_] {
               return hardware->setAutoExposure(kBothImagers, s.autoExposure);
           }) &&
           ask([hardware = hardware_, s = settings_] {
               return hardware->setHardwareOption(s.hardwareOption, kHardwareOptionValue);
           });
}

bool Sensor::configureEmitter() {
    KXEmitterControl* emitter = device_->emitterControl();
    if (emitter == nullptr) return !settings_.emitterOn;
    return switchEmitter(*emitter, settings_.emitterOn);
}

bool Sensor::startStreams() {
    // A size that no camera has means that the library's answers cannot be trusted.
    if (!checkStatus(frames_.sizeRecords(*device_, *third_))) return false;
    if (!ask([device = device_.get()] { return device->startCapture(); })) return false;
    if (settings_.autoExposure) return true;
    return ask([hardware = hardware_, s = settings_] { return hardware->setGain(s.gain, kBothImagers); }) &&
           ask([hardware = hardware_, s = settings_] { return hardware->setExposure(s.exposure, kBothImagers); });
}

}  // namespace fieldcal
