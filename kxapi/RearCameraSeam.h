#pragma once

#include <cstdint>

/// The seam through which the simulated module hands out the pictures of the tablet's rear camera where there is no
/// rear camera of the operating system. It is an optional extension of the shared library `KXAPI`: one exported
/// function, `KXSimRearCamera`, that gives the rear camera or null when the tablet has none. A vendor's library does
/// not export it. Same rules for the table as in `kxapi/KXAPI.h`.

/// Receives pictures. Called on the source's thread, which may be the one that grabs.
class RearCameraSink {
public:
    /// `nv12`: width x height luma bytes, then half as many of interleaved U and V. Valid during the call only.
    virtual void onPicture(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds) = 0;
};

class RearCameraSource {
public:
    virtual const char* friendlyName() = 0;
    virtual bool openCamera() = 0;
    virtual bool setAutoFocus(bool on) = 0;
    virtual bool setFocus(std::int32_t value) = 0;
    /// `stream`: 0 preview, 1 record, 2 photo. Only the record stream delivers pictures.
    virtual bool setupStream(std::int32_t stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                             const char* subtype) = 0;
    /// Pictures go to `sink` until the next call; null stops them. When it returns, the old sink is not in use.
    virtual void setSink(RearCameraSink* sink) = 0;
};

extern "C" {
using KXSimRearCameraFunction = RearCameraSource* (*)();
}
