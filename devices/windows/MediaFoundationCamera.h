#pragma once

#include "devices/PlatformCameraBackend.h"
#include "devices/windows/CaptureEngineEvents.h"
#include "devices/windows/CaptureStreams.h"
#include "devices/windows/MediaSystem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <strmif.h>
#include <wrl/client.h>

namespace fieldcal {

/// The tablet's rear camera, through Media Foundation's capture engine. All calls, including the destructor, belong to
/// one thread of COM's multithreaded apartment. Every operation returns false on a failure and logs the call that
/// failed.
class MediaFoundationCamera {
public:
    explicit MediaFoundationCamera(std::unique_ptr<MediaSystem> system);
    /// Stops the capture and releases the device.
    ~MediaFoundationCamera();
    MediaFoundationCamera(const MediaFoundationCamera&) = delete;
    MediaFoundationCamera& operator=(const MediaFoundationCamera&) = delete;

    bool selectDevice(const std::wstring& friendlyName);
    /// Waits, without a limit, until the engine is initialised or reports an error.
    bool openCamera();
    bool setAutoFocus(bool on);
    bool setFocus(std::int32_t value);
    /// Starts the record stream at once; its images are sent to `outlet`.
    bool setupStream(PlatformCameraBackend::Stream stream, const CaptureFormat& format,
                     const std::shared_ptr<ImageOutlet>& outlet);

private:
    bool findSelected(VideoDevice* out);
    bool createEngine();
    bool obtainControls();
    bool releaseBrightness();
    bool writeFocus(long value, long flags);

    const std::unique_ptr<MediaSystem> system_;
    bool running_ = false;  ///< Media Foundation was started
    std::wstring selected_;
    Microsoft::WRL::ComPtr<CaptureEngineEvents> events_;
    Microsoft::WRL::ComPtr<IMFMediaSource> device_;
    Microsoft::WRL::ComPtr<IMFCaptureEngine> engine_;
    Microsoft::WRL::ComPtr<IAMCameraControl> control_;
    Microsoft::WRL::ComPtr<IAMVideoProcAmp> videoProcessing_;
    std::unique_ptr<CaptureStreams> streams_;  ///< null until the camera is open
};

}  // namespace fieldcal
