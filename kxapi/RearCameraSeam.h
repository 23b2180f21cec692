#pragma once

#include <cstdint>

/// The interface through which the simulated module delivers the images of the tablet's rear camera when the operating
/// system has no such camera. It is an optional extension of the shared library `KXAPI`: one exported function,
/// `KXSimRearCamera`, returns the rear camera, or null when the tablet has none. A vendor's library does not export it.
/// The rules for function tables are those of `kxapi/KXAPI.h`.

/// Receives images. It is called on the thread of the source, which may be the thread that grabs.
class RearCameraSink {
public:
    /// `nv12`: width x height luma bytes, then half as many of interleaved U and V, valid during the call only.
    virtual void onImage(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds) = 0;
};

class RearCameraSource {
public:
    virtual const char* friendlyName() = 0;
    virtual bool openCamera() = 0;
    virtual bool setAutoFocus(bool on) = 0;
    virtual bool setFocus(std::int32_t value) = 0;
    /// `stream`: 0 preview, 1 record, 2 photo. Only the record stream delivers images.
    virtual bool setupStream(std::int32_t stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                             const char* subtype) = 0;
    /// Sets the receiver of images; null stops delivery. When the call returns, the previous sink is no longer in use.
    virtual void setSink(RearCameraSink* sink) = 0;
};

extern "C" {
using KXSimRearCameraFunction = RearCameraSource* (*)();
}
