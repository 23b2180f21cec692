#pragma once

#include "devices/PlatformCameraBackend.h"
#include "devices/windows/ComThread.h"
#include "devices/windows/MediaFoundationCamera.h"

#include <functional>
#include <memory>

namespace fieldcal {

/// The rear camera on Windows. It may be used and destroyed on any thread, because the camera itself lives on its own
/// COM thread.
class MediaFoundationBackend final : public PlatformCameraBackend {
public:
    /// `createSystem` is called on the COM thread.
    explicit MediaFoundationBackend(const std::function<std::unique_ptr<MediaSystem>()>& createSystem);
    ~MediaFoundationBackend() override;

    bool selectDevice(const std::string& friendlyName) override;
    bool openCamera() override;
    bool setAutoFocus(bool on) override;
    bool setFocus(std::int32_t value) override;
    bool setupStream(Stream stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                     const std::string& subtype) override;
    void setSink(RearCameraSink* sink) override;
    std::int32_t firstImageMs() const override;

private:
    bool run(const std::function<bool()>& call);

    const std::shared_ptr<ImageOutlet> outlet_ = std::make_shared<ImageOutlet>();
    std::unique_ptr<MediaFoundationCamera> camera_;  ///< created, used and destroyed on the COM thread
    ComThread thread_;
};

}  // namespace fieldcal
