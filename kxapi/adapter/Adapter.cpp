#include "kxapi/adapter/Library.h"

#if defined(_WIN32)
#define KXADAPTER_EXPORT extern "C" __declspec(dllexport)
#else
#define KXADAPTER_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace kxadapter {
namespace {

/// One interface: a handle of the adapted library and the functions that use it.
template <typename Interface>
class Adapted : public Interface {
public:
    /// Binds the object to `handle` and returns it; null for a null handle.
    Interface* around(void* handle, bool* missing) {
        handle_ = handle;
        missing_ = missing;
        return handle != nullptr ? this : nullptr;
    }

protected:
    /// Calls the function and returns its result; returns zero (false, null) when the function is missing.
    template <typename Answer, typename... Parameters, typename... Arguments>
    Answer call(Answer (*function)(void*, Parameters...), Arguments... arguments) {
        *missing_ = function == nullptr;
        return function != nullptr ? function(handle_, arguments...) : Answer{};
    }
    /// The same for `lastStatus`, which reports the status of the preceding call.
    std::int32_t statusOf(std::int32_t (*function)(void*)) {
        if (*missing_ || function == nullptr) return KX_STATUS_FAILED;
        return function(handle_);
    }
    bool* missing() { return missing_; }

private:
    void* handle_ = nullptr;
    bool* missing_ = nullptr;
};

class AdaptedHardwareControl final : public Adapted<KXHardwareControl> {
public:
    bool setAutoExposure(std::int32_t imagers, bool on) override {
        return call(library().hardware.setAutoExposure, imagers, on);
    }
    bool setGain(float value, std::int32_t imagers) override {
        return call(library().hardware.setGain, value, imagers);
    }
    bool setExposure(float milliseconds, std::int32_t imagers) override {
        return call(library().hardware.setExposure, milliseconds, imagers);
    }
    bool setHardwareOption(bool on, std::int32_t value) override {
        return call(library().hardware.setHardwareOption, on, value);
    }
};

class AdaptedThirdCamera final : public Adapted<KXThirdCamera> {
public:
    bool setThirdStreamMode(bool rectified, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            std::int32_t pixelFormat) override {
        return call(library().third.setThirdStreamMode, rectified, width, height, framesPerSecond, pixelFormat);
    }
    bool setThirdEnabled(bool on) override { return call(library().third.setThirdEnabled, on); }
    bool thirdEnabled() override { return call(library().third.thirdEnabled); }
    const std::uint8_t* thirdImage() override { return call(library().third.thirdImage); }
    std::int32_t thirdWidth() override { return call(library().third.thirdWidth); }
    std::int32_t thirdHeight() override { return call(library().third.thirdHeight); }
    bool rectifiedThirdIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return call(library().third.rectifiedThirdIntrinsics, out);
    }
    bool zToThirdExtrinsics(KXCalibExtrinsics* out) override { return call(library().third.zToThirdExtrinsics, out); }
};

class AdaptedEmitterControl final : public Adapted<KXEmitterControl> {
public:
    bool setEmitter(bool on) override { return call(library().emitter.setEmitter, on); }
};

class AdaptedPlatformCamera final : public Adapted<KXPlatformCamera> {
public:
    bool setPlatformMode(std::int32_t rectified, std::int32_t width, std::int32_t height) override {
        return call(library().platform.setPlatformMode, rectified, width, height);
    }
    bool nonRectifiedIntrinsics(KXCalibIntrinsicsNonRectified* out) override {
        return call(library().platform.nonRectifiedIntrinsics, out);
    }
    bool rectifiedIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return call(library().platform.rectifiedIntrinsics, out);
    }
    const double* rectificationRotation() override { return call(library().platform.rectificationRotation); }
    bool zToPlatformExtrinsics(KXCalibExtrinsics* out) override {
        return call(library().platform.zToPlatformExtrinsics, out);
    }
};

class AdaptedPrivate final : public Adapted<KXPrivate> {
public:
    bool writeRectParameters(const KXCalibRectParameters* parameters, bool permanent) override {
        return call(library().access.writeRectParameters, parameters, permanent);
    }
    bool commitCalibration() override { return call(library().access.commitCalibration); }
};

class AdaptedDevice final : public Adapted<KXDevice> {
public:
    explicit AdaptedDevice(void* handle) : device_(handle) { around(handle, &missingFunction_); }
    void* handle() const { return device_; }

    bool openDevice(std::int32_t index) override { return call(library().device.openDevice, index); }
    bool initDevice() override { return call(library().device.initDevice); }
    const char* firmwareVersionText() override { return call(library().device.firmwareVersionText); }
    const char* softwareVersionText() override { return call(library().device.softwareVersionText); }
    bool serialNumber(std::uint32_t* out) override { return call(library().device.serialNumber, out); }
    KXHardwareControl* hardwareControl() override {
        return hardware_.around(call(library().device.hardwareControl), missing());
    }
    KXThirdCamera* thirdCamera() override { return third_.around(call(library().device.thirdCamera), missing()); }
    KXEmitterControl* emitterControl() override {
        return emitter_.around(call(library().device.emitterControl), missing());
    }
    bool setDepthStreamMode(bool rectified, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            std::int32_t pixelFormat) override {
        return call(library().device.setDepthStreamMode, rectified, width, height, framesPerSecond, pixelFormat);
    }
    bool setDepthEnabled(bool on) override { return call(library().device.setDepthEnabled, on); }
    bool depthEnabled() override { return call(library().device.depthEnabled); }
    bool setLeftEnabled(bool on) override { return call(library().device.setLeftEnabled, on); }
    bool leftEnabled() override { return call(library().device.leftEnabled); }
    bool setRightEnabled(bool on) override { return call(library().device.setRightEnabled, on); }
    bool rightEnabled() override { return call(library().device.rightEnabled); }
    bool setStreamOption(bool on) override { return call(library().device.setStreamOption, on); }
    bool startCapture() override { return call(library().device.startCapture); }
    bool stopCapture() override { return call(library().device.stopCapture); }
    bool grab(bool wait) override { return call(library().device.grab, wait); }
    const std::uint16_t* depthImage() override { return call(library().device.depthImage); }
    const std::uint16_t* leftImage() override { return call(library().device.leftImage); }
    const std::uint16_t* rightImage() override { return call(library().device.rightImage); }
    std::int32_t depthWidth() override { return call(library().device.depthWidth); }
    std::int32_t depthHeight() override { return call(library().device.depthHeight); }
    std::int32_t lrWidth() override { return call(library().device.lrWidth); }
    std::int32_t lrHeight() override { return call(library().device.lrHeight); }
    std::int32_t lastStatus() override { return statusOf(library().device.lastStatus); }
    bool calibrationValid() override { return call(library().device.calibrationValid); }
    bool rectifiedLRIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return call(library().device.rectifiedLRIntrinsics, out);
    }
    bool zIntrinsics(KXCalibIntrinsicsRectified* out) override { return call(library().device.zIntrinsics, out); }
    bool rectParameters(KXCalibRectParameters* out) override { return call(library().device.rectParameters, out); }
    KXPlatformCamera* platformCamera() override {
        return platform_.around(call(library().device.platformCamera), missing());
    }
    KXPrivate* privateInterface() override {
        return access_.around(call(library().device.privateInterface), missing());
    }
    bool resumeDevice() override { return call(library().device.resumeDevice); }

private:
    void* const device_;
    bool missingFunction_ = false;  ///< the preceding call had no function
    AdaptedHardwareControl hardware_;
    AdaptedThirdCamera third_;
    AdaptedEmitterControl emitter_;
    AdaptedPlatformCamera platform_;
    AdaptedPrivate access_;
};

}  // namespace
}  // namespace kxadapter

using kxadapter::AdaptedDevice;
using kxadapter::library;

KXADAPTER_EXPORT std::int32_t KXInterfaceVersion() {
    return KX_INTERFACE_VERSION;
}

KXADAPTER_EXPORT KXDevice* KXCreate(std::int32_t platform) {
    void* handle = library().create(platform);
    return handle != nullptr ? new AdaptedDevice(handle) : nullptr;
}

KXADAPTER_EXPORT void KXDestroy(KXDevice* device) {
    auto* adapted = static_cast<AdaptedDevice*>(device);
    if (adapted != nullptr) library().destroy(adapted->handle());
    delete adapted;
}

KXADAPTER_EXPORT const char* KXStatusString(std::int32_t status) {
    return library().statusText(status);
}

KXADAPTER_EXPORT void KXRectificationTable(const KXCalibIntrinsicsNonRectified* raw, const double* rotation,
                                           const KXCalibIntrinsicsRectified* rectified, std::uint32_t* table) {
    library().rectificationTable(raw, rotation, rectified, table);
}

KXADAPTER_EXPORT void KXRectifyBGRA8ToBGRA8(const std::uint32_t* table, const std::uint8_t* source,
                                            std::int32_t pitchPixels, std::int32_t width, std::int32_t height,
                                            std::uint8_t* destination) {
    library().rectifyBGRA8ToBGRA8(table, source, pitchPixels, width, height, destination);
}
