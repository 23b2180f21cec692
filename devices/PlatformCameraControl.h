#pragma once

#include "devices/FrameQueue.h"
#include "devices/PlatformCameraBackend.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace fieldcal {

/// The tablet's own rear colour camera. The sequence is: select the device, open it, set up the streams. From the
/// record stream on, images arrive on the backend's thread and wait in a queue; all other calls belong to one thread.
/// Every operation returns false on a failure, or when the preceding step of the sequence is missing.
class CPlatformCameraControl final : private RearCameraSink {
public:
    explicit CPlatformCameraControl(std::unique_ptr<PlatformCameraBackend> backend);
    /// Stops the capture.
    ~CPlatformCameraControl();
    CPlatformCameraControl(const CPlatformCameraControl&) = delete;
    CPlatformCameraControl& operator=(const CPlatformCameraControl&) = delete;

    /// Only the first 260 characters of `name` are compared; an empty name fails.
    bool findDevice(const std::string& name);
    bool openCamera();
    bool setAutoFocus(bool on);
    bool setFocus(std::int32_t value);
    bool setupPreviewStream(std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            const std::string& subtype);
    bool setupRecordStream(std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                           const std::string& subtype);
    bool setupPhotoStream(std::int32_t width, std::int32_t height, const std::string& subtype);

    /// Returns the newest NV12 image of the record stream, valid until the next call; false when there is none newer
    /// than the last one. Waits at most `waitMilliseconds`, and only until the first image was returned: after that the
    /// caller has an image to keep, and the depth stream must not be slowed down to the rate of the rear camera.
    bool latestFrame(QueuedImage* out, std::int32_t waitMilliseconds);

    /// Set once the first image has arrived.
    bool frameReady() const { return frameReady_; }

    /// Waits for the time that the camera may take to start. Returns false when there is still no image, or when
    /// `*stop` (may be null) became true.
    bool awaitFirstFrame(const std::atomic<bool>* stop) const;

private:
    enum class State { Empty, Selected, Open };

    void onImage(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds) override;

    std::unique_ptr<PlatformCameraBackend> backend_;
    FrameQueue queue_;
    State state_ = State::Empty;
    bool handedOut_ = false;
    std::uint32_t frameCounter_ = 0;  ///< used on the backend's thread only
    std::atomic<bool> frameReady_{false};
};

}  // namespace fieldcal
