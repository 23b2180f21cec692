// The open sequence of `Sensor`. Each step either succeeds or has reported why not.
#include "devices/PlatformCameraSetup.h"
#include "devices/Sensor.h"

#include <string>
#include <utility>

namespace fieldcal {
namespace {

constexpr std::int32_t kAnyDevice = -1;
constexpr std::int32_t kBothImagers = 3;
constexpr std::int32_t kHardwareOptionValue = 16;
constexpr std::int32_t kDepthFramesPerSecond = 60;
constexpr std::int32_t kThirdFramesPerSecond = 30;

std::string textOf(const char* libraryText) {
    return libraryText != nullptr ? libraryText : "";
}

struct Interfaces {
    KXThirdCamera* third = nullptr;
    KXHardwareControl* hardware = nullptr;
};

struct Identity {
    std::string firmware;
    std::string software;
    bool calibrationValid = false;
};

struct RearCamera {
    std::shared_ptr<CPlatformCameraControl> camera;
    PlatformSetup setup = PlatformSetup::Issue;
};

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
    const auto rear = std::make_shared<RearCamera>();
    const auto ending = watch([create = environment_.createPlatformCamera, library = library_, rear] {
        rear->camera = create(library);
        rear->setup = setUpPlatformCamera(*rear->camera);
    });
    if (ending == WatchedCalls::Ending::Stopped) return false;
    if (ending == WatchedCalls::Ending::Overdue || rear->setup == PlatformSetup::Issue) {
        emit signal_reportPlatformCameraIssue();
        return false;
    }
    if (rear->setup == PlatformSetup::Missing) {
        emit signal_reportMissingPlatformCamera();
        return false;
    }
    platformCamera_ = std::move(rear->camera);
    // Bounded. Silence is told later, once pictures are missed.
    platformCamera_->awaitFirstFrame(stop_);
    return !stopRequested();
}

bool Sensor::createDevice() {
    const auto created = std::make_shared<KXDevice*>(nullptr);
    const auto ending = watch([library = library_, created] { *created = library->create(0); });
    if (ending == WatchedCalls::Ending::Overdue) reportNoAnswer();
    if (ending != WatchedCalls::Ending::Returned) return false;
    KXDevice* device = *created;
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
    const auto found = std::make_shared<Interfaces>();
    const auto find = [device, found] {
        found->third = device->thirdCamera();
        found->hardware = device->hardwareControl();
        return true;
    };
    if (!ask(find)) return false;
    third_ = found->third;
    hardware_ = found->hardware;
    return ask([device] { return device->initDevice(); });
}

bool Sensor::identifyDevice() {
    KXDevice* device = device_.get();
    if (!read(device, &KXDevice::serialNumber, &serialNumber_)) return false;
    const auto identity = std::make_shared<Identity>();
    const auto identify = [device, identity] {
        *identity = {textOf(device->firmwareVersionText()), textOf(device->softwareVersionText()),
                     device->calibrationValid()};
        return true;
    };
    if (!ask(identify)) return false;
    qInfo("Sensor firmware version: %s", identity->firmware.c_str());
    qInfo("Sensor software version: %s", identity->software.c_str());
    qInfo("Sensor camera serial no: %u", serialNumber_);
    if (!identity->calibrationValid) qCritical("Calibration data on camera is invalid.");
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
    KXEmitterControl* emitter = nullptr;
    if (!findEmitter(&emitter)) return false;
    if (emitter == nullptr) return !settings_.emitterOn;
    return switchEmitter(emitter, settings_.emitterOn);
}

bool Sensor::startStreams() {
    // A size that no camera has means that the library's answers cannot be trusted.
    if (!ask([frames = frames_, device = device_.get(), third = third_] {
            return frames->sizeRecords(*device, *third);
        })) {
        return false;
    }
    if (!ask([device = device_.get()] { return device->startCapture(); })) return false;
    if (settings_.autoExposure) return true;
    return ask([hardware = hardware_, s = settings_] { return hardware->setGain(s.gain, kBothImagers); }) &&
           ask([hardware = hardware_, s = settings_] { return hardware->setExposure(s.exposure, kBothImagers); });
}

}  // namespace fieldcal
