#pragma once

#include "simulator/kxapi/CameraInterfaces.h"
#include "simulator/kxapi/ControlInterfaces.h"
#include "simulator/kxapi/Pace.h"
#include "simulator/kxapi/Streams.h"

namespace kxsim {

/// The simulated module. It enforces the order of calls: open, init, modes and streams, capture, grab; any other order
/// fails with status 1. A recording without right infrared images gives none, and one without depth gives depth 0.
/// Whatever size is requested for the depth stream, images have the recording's own sizes.
class SimulatedDevice final : public KXDevice {
public:
    explicit SimulatedDevice(Settings settings);

    /// To be called before destruction; it is subject to faults.
    void close();

    bool openDevice(std::int32_t index) override;
    bool initDevice() override;
    const char* firmwareVersionText() override;
    const char* softwareVersionText() override;
    bool serialNumber(std::uint32_t* out) override;
    KXHardwareControl* hardwareControl() override;
    KXThirdCamera* thirdCamera() override;
    KXEmitterControl* emitterControl() override;
    bool setDepthStreamMode(bool rectified, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            std::int32_t pixelFormat) override;
    bool setDepthEnabled(bool on) override;
    bool depthEnabled() override;
    bool setLeftEnabled(bool on) override;
    bool leftEnabled() override;
    bool setRightEnabled(bool on) override;
    bool rightEnabled() override;
    bool setStreamOption(bool on) override;
    bool startCapture() override;
    bool stopCapture() override;
    bool grab(bool wait) override;
    const std::uint16_t* depthImage() override;
    const std::uint16_t* leftImage() override;
    const std::uint16_t* rightImage() override;
    std::int32_t depthWidth() override;
    std::int32_t depthHeight() override;
    std::int32_t lrWidth() override;
    std::int32_t lrHeight() override;
    std::int32_t lastStatus() override;
    bool calibrationValid() override;
    bool rectifiedLRIntrinsics(KXCalibIntrinsicsRectified* out) override;
    bool zIntrinsics(KXCalibIntrinsicsRectified* out) override;
    bool rectParameters(KXCalibRectParameters* out) override;
    KXPlatformCamera* platformCamera() override;
    KXPrivate* privateInterface() override;
    bool resumeDevice() override;

private:
    bool plugIn();
    bool beginCapture();
    bool nextFrame(bool wait);
    bool setEnabled(const char* operation, bool* stream, bool on);
    void showToRearCamera() const;

    ModuleState state_;
    HardwareInterface hardware_;
    ThirdInterface third_;
    EmitterInterface emitter_;
    PlatformInterface platform_;
    PrivateInterface private_;
    Pace pace_;
    std::vector<std::uint16_t> noDepth_;  ///< all 0, for frames without depth
};

}  // namespace kxsim
