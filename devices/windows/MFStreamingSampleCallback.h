#pragma once

#include "devices/windows/ComObject.h"
#include "kxapi/RearCameraSeam.h"

#include <cstdint>
#include <memory>
#include <mfcaptureengine.h>
#include <mutex>

namespace fieldcal {

/// The destination of a stream's images. The callbacks share it, so that a callback that the engine still holds or
/// calls late finds it empty and not destroyed. Any thread.
class ImageOutlet {
public:
    /// With null, images are dropped. When the call returns, the previous sink is no longer in use.
    void set(RearCameraSink* sink);
    void deliver(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds);

private:
    std::mutex mutex_;
    RearCameraSink* sink_ = nullptr;
};

/// Receives the samples of one video stream on one of the capture engine's threads.
class MFStreamingSampleCallback final : public ComObject<IMFCaptureEngineOnSampleCallback> {
public:
    /// `width` and `height`: the stream's size in pixels.
    MFStreamingSampleCallback(std::shared_ptr<ImageOutlet> outlet, std::int32_t width, std::int32_t height);

    HRESULT STDMETHODCALLTYPE OnSample(IMFSample* sample) override;

private:
    void deliver(IMFMediaBuffer& buffer, double timeSeconds);

    const std::shared_ptr<ImageOutlet> outlet_;
    const std::int32_t width_;
    const std::int32_t height_;
    std::int32_t frameCounter_ = 0;
};

}  // namespace fieldcal
