#pragma once

#include "kxapi/RearCameraSeam.h"

#include <cstdint>
#include <string>

namespace fieldcal {

/// The operating system's interface to the tablet's rear camera. `CPlatformCameraControl` calls the operations in the
/// order of their declaration. Each returns false on any failure of the system.
class PlatformCameraBackend {
public:
    enum class Stream : std::int32_t { Preview = 0, Record = 1, Photo = 2 };

    virtual ~PlatformCameraBackend() = default;

    /// Selects the first video capture device whose friendly name equals `friendlyName` (UTF-8) exactly.
    virtual bool selectDevice(const std::string& friendlyName) = 0;
    virtual bool openCamera() = 0;
    virtual bool setAutoFocus(bool on) = 0;
    virtual bool setFocus(std::int32_t value) = 0;
    /// `framesPerSecond` is 0 for the photo stream. `subtype` is the pixel format's name, "NV12".
    virtual bool setupStream(Stream stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                             const std::string& subtype) = 0;
    /// Sends the record stream's images to `sink`, on a thread chosen by the backend, until the next call. Null stops
    /// them. When the call returns, the previous sink is no longer in use.
    virtual void setSink(RearCameraSink* sink) = 0;

    /// Longest time from setting up the streams to the first image. 0 when images arrive during the grabs of the
    /// module.
    virtual std::int32_t firstImageMs() const = 0;
};

}  // namespace fieldcal
