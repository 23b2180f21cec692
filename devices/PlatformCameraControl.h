#pragma once

#include "devices/FrameQueue.h"
#include "devices/PlatformCameraBackend.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace fieldcal {

/// The tablet's own rear colour camera. Created empty, then: device selected, opened, streams set up; from the record
/// stream on, its pictures arrive on the backend's thread and wait in a queue. Everything else on one thread.
/// Every operation returns false on any failure, and before the step that it needs.
class CPlatformCameraControl final : private RearCameraSink {
public:
    explicit CPlatformCameraControl(std::unique_ptr<PlatformCameraBackend> backend);
    /// Stops the capture first.
    ~CPlatformCameraControl();
    CPlatformCameraControl(const CPlatformCameraControl&) = delete;
    CPlatformCameraControl& operator=(const CPlatformCameraControl&) = delete;

    /// The first 260 characters of `name` count; an empty name fails.
    bool findDevice(const std::string& name);
    bool openCamera();
    bool setAutoFocus(bool on);
    bool setFocus(std::int32_t value);
    bool setupPreviewStream(std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            const std::string& subtype);
    bool setupRecordStream(std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                           const std::string& subtype);
    bool setupPhotoStream(std::int32_t width, std::int32_t height, const std::string& subtype);

    /// The newest NV12 picture of the record stream, valid until the next call; false when there is nothing newer
    /// than the last one. Waits at most `waitMilliseconds`, and only as long as no picture was ever handed out:
    /// afterwards the caller has one to keep, and the depth stream must not wait for the rear camera's pace.
    bool latestFrame(QueuedPicture* out, std::int32_t waitMilliseconds);

    /// Set once the first picture has arrived.
    bool frameReady() const { return frameReady_; }

    /// Gives the camera the time it may take to start. False: still no picture, or `*stop` became true (may be null).
    bool awaitFirstFrame(const std::atomic<bool>* stop) const;

private:
    enum class State { Empty, Selected, Open };

    void onPicture(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds) override;

    std::unique_ptr<PlatformCameraBackend> backend_;
    FrameQueue queue_;
    State state_ = State::Empty;
    bool handedOut_ = false;
    std::uint32_t frameCounter_ = 0;  ///< the backend's thread only
    std::atomic<bool> frameReady_{false};
};

}  // namespace fieldcal
