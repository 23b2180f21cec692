#pragma once

#include "kxapi/RearCameraSeam.h"
#include "simulator/kxapi/Faults.h"

#include <mutex>
#include <string>

namespace kxsim {

/// The tablet's rear camera: one per process, fed by the device that grabs. Images reach the sink on the grabbing
/// thread before `grab` returns, so that playback is deterministic. A sink must not call back into the camera.
class RearCamera final : public RearCameraSource {
public:
    static RearCamera& instance();

    /// Reads the environment: the recording's camera name and the faults. Returns false when the tablet has no rear
    /// camera. It has one with every recording, even with one that has no platform camera or cannot be read; the module
    /// then reports the fault.
    bool plugIn();

    const char* friendlyName() override;
    bool openCamera() override;
    bool setAutoFocus(bool on) override;
    bool setFocus(std::int32_t value) override;
    bool setupStream(std::int32_t stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                     const char* subtype) override;
    void setSink(RearCameraSink* sink) override;

    /// Returns whether the images are being received.
    bool streams();
    /// Sends a 1280 x 720 NV12 image to the sink, if there is one and the record stream is set up.
    void show(const std::uint8_t* nv12, double timeSeconds);
    /// Sends a black image, which a working camera delivers before there is anything to see.
    void showDark();

private:
    template <typename Action>
    bool perform(const char* operation, Action action);
    std::optional<Fault> strike(const char* operation);

    std::mutex mutex_;
    std::string name_;
    Faults faults_;
    bool disconnected_ = false;
    bool opened_ = false;
    bool streaming_ = false;
    RearCameraSink* sink_ = nullptr;
};

}  // namespace kxsim
