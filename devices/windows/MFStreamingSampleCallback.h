#pragma once

#include "devices/windows/ComObject.h"
#include "kxapi/RearCameraSeam.h"

#include <cstdint>
#include <memory>
#include <mfcaptureengine.h>
#include <mutex>

namespace fieldcal {

/// Where a stream's pictures go. The callbacks share it, so that one that the engine still holds, or calls late, finds
/// it empty rather than gone. Any thread.
class PictureOutlet {
public:
    /// Null: pictures are dropped. When it returns, the old sink is not in use.
    void set(RearCameraSink* sink);
    void deliver(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds);

private:
    std::mutex mutex_;
    RearCameraSink* sink_ = nullptr;
};

/// Receives the samples of one video stream on a thread of the capture engine's.
class MFStreamingSampleCallback final : public ComObject<IMFCaptureEngineOnSampleCallback> {
public:
    /// The stream's size in pixels.
    MFStreamingSampleCallback(std::shared_ptr<PictureOutlet> outlet, std::int32_t width, std::int32_t height);

    HRESULT STDMETHODCALLTYPE OnSample(IMFSample* sample) override;

private:
    void deliver(IMFMediaBuffer& buffer, double timeSeconds);

    const std::shared_ptr<PictureOutlet> outlet_;
    const std::int32_t width_;
    const std::int32_t height_;
    std::int32_t frameCounter_ = 0;
};

}  // namespace fieldcal
