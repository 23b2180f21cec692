#pragma once

#include "kxapi/KXAPI.h"

#include <cstdint>

/// The structure that an adapter fills in. For each interface of `KXAPI.h` it has a record of functions, in the order
/// of the interface's operations and with the same meaning. The first argument is a handle, by which the adapted
/// library identifies the device or the interface. Units, matrix orders and numbers are those of `KXAPI.h`; the
/// functions convert between them and those of the adapted library. A function left null fails with status 1.
namespace kxadapter {

struct HardwareControlFunctions {
    bool (*setAutoExposure)(void* handle, std::int32_t imagers, bool on);
    bool (*setGain)(void* handle, float value, std::int32_t imagers);
    bool (*setExposure)(void* handle, float milliseconds, std::int32_t imagers);
    bool (*setHardwareOption)(void* handle, bool on, std::int32_t value);
};

struct ThirdCameraFunctions {
    bool (*setThirdStreamMode)(void* handle, bool rectified, std::int32_t width, std::int32_t height,
                               std::int32_t framesPerSecond, std::int32_t pixelFormat);
    bool (*setThirdEnabled)(void* handle, bool on);
    bool (*thirdEnabled)(void* handle);
    const std::uint8_t* (*thirdImage)(void* handle);
    std::int32_t (*thirdWidth)(void* handle);
    std::int32_t (*thirdHeight)(void* handle);
    bool (*rectifiedThirdIntrinsics)(void* handle, KXCalibIntrinsicsRectified* out);
    bool (*zToThirdExtrinsics)(void* handle, KXCalibExtrinsics* out);
};

struct EmitterControlFunctions {
    bool (*setEmitter)(void* handle, bool on);
};

struct PlatformCameraFunctions {
    bool (*setPlatformMode)(void* handle, std::int32_t rectified, std::int32_t width, std::int32_t height);
    bool (*nonRectifiedIntrinsics)(void* handle, KXCalibIntrinsicsNonRectified* out);
    bool (*rectifiedIntrinsics)(void* handle, KXCalibIntrinsicsRectified* out);
    const double* (*rectificationRotation)(void* handle);
    bool (*zToPlatformExtrinsics)(void* handle, KXCalibExtrinsics* out);
};

struct PrivateFunctions {
    bool (*writeRectParameters)(void* handle, const KXCalibRectParameters* parameters, bool permanent);
    bool (*commitCalibration)(void* handle);
};

struct DeviceFunctions {
    bool (*openDevice)(void* handle, std::int32_t index);
    bool (*initDevice)(void* handle);
    const char* (*firmwareVersionText)(void* handle);
    const char* (*softwareVersionText)(void* handle);
    bool (*serialNumber)(void* handle, std::uint32_t* out);
    void* (*hardwareControl)(void* handle);  ///< the interface's handle; null: the module has none
    void* (*thirdCamera)(void* handle);      ///< the interface's handle; null: the module has none
    void* (*emitterControl)(void* handle);   ///< the interface's handle; null: the module has none
    bool (*setDepthStreamMode)(void* handle, bool rectified, std::int32_t width, std::int32_t height,
                               std::int32_t framesPerSecond, std::int32_t pixelFormat);
    bool (*setDepthEnabled)(void* handle, bool on);
    bool (*depthEnabled)(void* handle);
    bool (*setLeftEnabled)(void* handle, bool on);
    bool (*leftEnabled)(void* handle);
    bool (*setRightEnabled)(void* handle, bool on);
    bool (*rightEnabled)(void* handle);
    bool (*setStreamOption)(void* handle, bool on);
    bool (*startCapture)(void* handle);
    bool (*stopCapture)(void* handle);
    bool (*grab)(void* handle, bool wait);
    const std::uint16_t* (*depthImage)(void* handle);
    const std::uint16_t* (*leftImage)(void* handle);
    const std::uint16_t* (*rightImage)(void* handle);
    std::int32_t (*depthWidth)(void* handle);
    std::int32_t (*depthHeight)(void* handle);
    std::int32_t (*lrWidth)(void* handle);
    std::int32_t (*lrHeight)(void* handle);
    std::int32_t (*lastStatus)(void* handle);
    bool (*calibrationValid)(void* handle);
    bool (*rectifiedLRIntrinsics)(void* handle, KXCalibIntrinsicsRectified* out);
    bool (*zIntrinsics)(void* handle, KXCalibIntrinsicsRectified* out);
    bool (*rectParameters)(void* handle, KXCalibRectParameters* out);
    void* (*platformCamera)(void* handle);    ///< the interface's handle; null: the module has none
    void* (*privateInterface)(void* handle);  ///< the interface's handle; null: the module has none
    bool (*resumeDevice)(void* handle);
};

/// An adapted camera library. It is filled in once and then constant.
struct Library {
    /// Returns the handle of a new device; null when there is no camera.
    void* (*create)(std::int32_t platform);
    void (*destroy)(void* device);
    /// Returns the text of a status value of `KXAPI.h`.
    KXStatusStringFunction statusText;
    KXRectificationTableFunction rectificationTable;
    KXRectifyBGRA8ToBGRA8Function rectifyBGRA8ToBGRA8;
    DeviceFunctions device;
    HardwareControlFunctions hardware;
    ThirdCameraFunctions third;
    EmitterControlFunctions emitter;
    PlatformCameraFunctions platform;
    PrivateFunctions access;
};

/// Returns the adapted library. Every adapter defines this function.
const Library& library();

}  // namespace kxadapter
