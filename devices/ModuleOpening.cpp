#include "devices/ModuleOpening.h"

#include <string>

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

struct Identity {
    std::string firmware;
    std::string software;
    bool calibrationValid = false;
};

bool identify(ModuleLink& link, std::uint32_t* serial) {
    KXDevice* device = link.device().get();
    const auto number = link.read(device, &KXDevice::serialNumber);
    if (!number) return false;
    *serial = *number;
    const auto identity = link.ask([device] {
        return std::optional(Identity{textOf(device->firmwareVersionText()), textOf(device->softwareVersionText()),
                                      device->calibrationValid()});
    });
    if (!identity) return false;
    qInfo("Sensor firmware version: %s", identity->firmware.c_str());
    qInfo("Sensor software version: %s", identity->software.c_str());
    qInfo("Sensor camera serial no: %u", *serial);
    if (!identity->calibrationValid) qCritical("Calibration data on camera is invalid.");
    return true;
}

bool configureDepth(ModuleLink& link, const SensorSettings& s) {
    KXDevice* device = link.device().get();
    return link.ask([=] { return device->setDepthEnabled(s.depthEnabled); }) &&
           link.ask([=] { return device->setLeftEnabled(s.leftEnabled); }) &&
           link.ask([=] { return device->setRightEnabled(s.rightEnabled); }) &&
           link.ask([=] { return device->setStreamOption(s.streamOption); }) && link.ask([=] {
               return device->setDepthStreamMode(s.rectified, s.depthWidth, s.depthHeight, kDepthFramesPerSecond,
                                                 s.depthPixelFormat);
           });
}

bool configureThird(ModuleLink& link, KXThirdCamera* third, const SensorSettings& s) {
    if (third == nullptr || !s.thirdEnabled) {
        qInfo("Third failed !_third check. Could not detect in-module color sensor.");
        return false;
    }
    return link.ask([third] { return third->setThirdEnabled(true); }) && link.ask([=] {
        return third->setThirdStreamMode(s.rectified, s.thirdWidth, s.thirdHeight, kThirdFramesPerSecond,
                                         s.thirdPixelFormat);
    });
}

bool configureHardware(ModuleLink& link, KXHardwareControl* hardware, const SensorSettings& s) {
    return link.ask([=] { return hardware->setAutoExposure(kBothImagers, s.autoExposure); }) &&
           link.ask([=] { return hardware->setHardwareOption(s.hardwareOption, kHardwareOptionValue); });
}

bool startStreams(ModuleLink& link, const OpenedModule& module, KXHardwareControl* hardware, const SensorSettings& s,
                  const std::shared_ptr<FrameAcquisition>& frames) {
    KXDevice* device = link.device().get();
    // An implausible size means that the library's results cannot be trusted.
    if (!link.ask([=, third = module.third] { return frames->sizeRecords(*device, *third); })) return false;
    if (!link.ask([=] { return device->startCapture(); })) return false;
    if (s.autoExposure) return true;
    return link.ask([=] { return hardware->setGain(s.gain, kBothImagers); }) &&
           link.ask([=] { return hardware->setExposure(s.exposure, kBothImagers); });
}

}  // namespace

bool openModule(ModuleLink& link, const SensorSettings& settings, const std::shared_ptr<FrameAcquisition>& frames,
                OpenedModule* out) {
    KXDevice* device = link.device().get();
    if (!link.ask([=] { return device->openDevice(kAnyDevice); })) return false;
    qInfo("Q550 device opened.");
    const auto third = link.ask([=] { return std::optional(device->thirdCamera()); });
    if (!third) return false;
    out->third = *third;
    KXHardwareControl* hardware = link.ask([=] { return device->hardwareControl(); });
    return hardware != nullptr && link.ask([=] { return device->initDevice(); }) && identify(link, &out->serial) &&
           configureDepth(link, settings) && configureThird(link, out->third, settings) &&
           configureHardware(link, hardware, settings) && switchEmitter(link, settings.emitterOn) &&
           startStreams(link, *out, hardware, settings, frames);
}

bool switchEmitter(ModuleLink& link, bool on, bool quietly) {
    const auto ask = [&](auto call) { return quietly ? link.askQuietly(call) : link.ask(call); };
    const auto found = ask([device = link.device().get()] { return std::optional(device->emitterControl()); });
    if (!found) return false;
    if (*found == nullptr) return !on;
    if (!ask([emitter = *found, on] { return emitter->setEmitter(on); })) return false;
    qInfo("Emitter is %s.", on ? "enabled" : "disabled");
    return true;
}

}  // namespace fieldcal
