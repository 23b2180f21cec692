#pragma once

/// The interface of the depth camera's library as this project uses it: a version number, a few exported functions, and
/// pure abstract classes whose operations are in slot order. There are no virtual destructors and no overloads, and
/// parameters are plain records or `const char*` only, so that the function tables agree whichever compilers built the
/// two sides. New operations may be added only at the end of a class, and `KX_INTERFACE_VERSION` must then be raised.
///
/// Units: pixels for intrinsics, millimetres for translations. Matrices are row-major. Pointers returned by an
/// operation stay valid until the device is destroyed, pointers to pixels until the next `grab`. An operation that
/// returns bool returns false on failure; `KXDevice::lastStatus` then gives the reason.
/// Threads: a device may be used by one thread at a time.

#include <cstddef>
#include <cstdint>

constexpr std::int32_t KX_INTERFACE_VERSION = 1;

/// Status of the last failed call (`KXDevice::lastStatus`). A library may return other values, too; it provides the
/// text of each (`KXStatusString`).
enum KXStatus : std::int32_t {
    KX_STATUS_OK = 0,
    KX_STATUS_FAILED = 1,
    KX_STATUS_NOT_CALIBRATED = 4,
    KX_STATUS_NO_DEVICE = 5,
    KX_STATUS_DEVICE_ERROR = 6,
    KX_STATUS_DEVICE_BUSY = 7,
    KX_STATUS_FIRMWARE_TOO_OLD = 11,
};

/// Pixel formats of `setDepthStreamMode` and `setThirdStreamMode`.
enum KXPixelFormat : std::int32_t {
    KX_PIXEL_FORMAT_16_BIT = 1,
    KX_PIXEL_FORMAT_BGRA8 = 3,
};

struct KXCalibIntrinsicsRectified {
    float fx, fy, cx, cy;
    std::int32_t w, h;
};

/// Raw model of the platform camera with its radial (k1, k2, k3) and tangential (p1, p2) distortion.
struct KXCalibIntrinsicsNonRectified {
    float fx, fy, cx, cy;
    std::int32_t w, h;
    float k1, k2, p1, p2, k3;
};

/// X_colour = rotation · X_depth + translation; millimetres.
struct KXCalibExtrinsics {
    float rotation[9];
    float translation[3];
};

/// The rectification parameter block as stored in the flash. Only the three matrices may be read and written by this
/// project; each of them rotates a raw camera's coordinates into its rectified frame. The other bytes must be kept.
struct KXCalibRectParameters {
    std::uint8_t reserved0[1272];
    float rectificationInfrared[9];
    std::uint8_t reserved1[108];
    float rectificationThird[9];
    std::uint8_t reserved2[36];
    float rectificationPlatform[9];
    std::uint8_t reserved3[524];
};
static_assert(offsetof(KXCalibRectParameters, rectificationInfrared) == 1272, "fixed by the flash layout");
static_assert(offsetof(KXCalibRectParameters, rectificationThird) == 1416, "fixed by the flash layout");
static_assert(offsetof(KXCalibRectParameters, rectificationPlatform) == 1488, "fixed by the flash layout");
static_assert(sizeof(KXCalibRectParameters) == 2048, "fixed by the flash layout");
static_assert(sizeof(KXCalibIntrinsicsRectified) == 24 && sizeof(KXCalibIntrinsicsNonRectified) == 44, "no padding");
static_assert(sizeof(KXCalibExtrinsics) == 48, "no padding");

/// `imagers` is a bit mask; 3 means both infrared imagers.
class KXHardwareControl {
public:
    virtual bool setAutoExposure(std::int32_t imagers, bool on) = 0;
    virtual bool setGain(float value, std::int32_t imagers) = 0;
    virtual bool setExposure(float milliseconds, std::int32_t imagers) = 0;
    virtual bool setHardwareOption(bool on, std::int32_t value) = 0;
};

class KXThirdCamera {
public:
    virtual bool setThirdStreamMode(bool rectified, std::int32_t width, std::int32_t height,
                                    std::int32_t framesPerSecond, std::int32_t pixelFormat) = 0;
    virtual bool setThirdEnabled(bool on) = 0;
    virtual bool thirdEnabled() = 0;
    virtual const std::uint8_t* thirdImage() = 0;
    virtual std::int32_t thirdWidth() = 0;
    virtual std::int32_t thirdHeight() = 0;
    virtual bool rectifiedThirdIntrinsics(KXCalibIntrinsicsRectified* out) = 0;
    virtual bool zToThirdExtrinsics(KXCalibExtrinsics* out) = 0;
};

class KXEmitterControl {
public:
    virtual bool setEmitter(bool on) = 0;
};

/// Calibration of the tablet's own rear camera. Its images are not delivered by this library.
class KXPlatformCamera {
public:
    virtual bool setPlatformMode(std::int32_t rectified, std::int32_t width, std::int32_t height) = 0;
    virtual bool nonRectifiedIntrinsics(KXCalibIntrinsicsNonRectified* out) = 0;
    virtual bool rectifiedIntrinsics(KXCalibIntrinsicsRectified* out) = 0;
    /// Nine doubles, X_rectified = rotation · X_raw; null when unknown.
    virtual const double* rectificationRotation() = 0;
    /// Depth to the *rectified* platform camera.
    virtual bool zToPlatformExtrinsics(KXCalibExtrinsics* out) = 0;
};

/// Writing the calibration. Capture must be stopped (`stopCapture`).
class KXPrivate {
public:
    /// Transfers a block to the module. `permanent`: the block is written into the spare half of the flash, where it
    /// has no effect before `commitCalibration`; otherwise it is used until the module is switched off.
    virtual bool writeRectParameters(const KXCalibRectParameters* parameters, bool permanent) = 0;
    /// Makes the block that was written last the valid one, atomically: after a loss of power either the old or the new
    /// block is valid.
    virtual bool commitCalibration() = 0;
};

class KXDevice {
public:
    virtual bool openDevice(std::int32_t index) = 0;
    virtual bool initDevice() = 0;
    virtual const char* firmwareVersionText() = 0;
    virtual const char* softwareVersionText() = 0;
    virtual bool serialNumber(std::uint32_t* out) = 0;
    virtual KXHardwareControl* hardwareControl() = 0;
    virtual KXThirdCamera* thirdCamera() = 0;
    virtual KXEmitterControl* emitterControl() = 0;
    virtual bool setDepthStreamMode(bool rectified, std::int32_t width, std::int32_t height,
                                    std::int32_t framesPerSecond, std::int32_t pixelFormat) = 0;
    virtual bool setDepthEnabled(bool on) = 0;
    virtual bool depthEnabled() = 0;
    virtual bool setLeftEnabled(bool on) = 0;
    virtual bool leftEnabled() = 0;
    virtual bool setRightEnabled(bool on) = 0;
    virtual bool rightEnabled() = 0;
    virtual bool setStreamOption(bool on) = 0;
    virtual bool startCapture() = 0;
    virtual bool stopCapture() = 0;
    /// With `wait` set, blocks until the next frame set is available.
    virtual bool grab(bool wait) = 0;
    /// Images of the grabbed frame set. Both infrared images have the same time and size. Null when the stream is off
    /// or the frame set has no such image.
    virtual const std::uint16_t* depthImage() = 0;
    virtual const std::uint16_t* leftImage() = 0;
    virtual const std::uint16_t* rightImage() = 0;
    virtual std::int32_t depthWidth() = 0;
    virtual std::int32_t depthHeight() = 0;
    virtual std::int32_t lrWidth() = 0;
    virtual std::int32_t lrHeight() = 0;
    virtual std::int32_t lastStatus() = 0;
    virtual bool calibrationValid() = 0;
    virtual bool rectifiedLRIntrinsics(KXCalibIntrinsicsRectified* out) = 0;
    virtual bool zIntrinsics(KXCalibIntrinsicsRectified* out) = 0;
    /// The valid block; it is read from the flash in every call.
    virtual bool rectParameters(KXCalibRectParameters* out) = 0;
    /// Null when the module has no calibrated platform camera.
    virtual KXPlatformCamera* platformCamera() = 0;
    virtual KXPrivate* privateInterface() = 0;
    /// Ends the interruption that `stopCapture` began: the module loads the valid block, uses it from now on, and
    /// captures.
    virtual bool resumeDevice() = 0;
};

/// The functions that the shared library `KXAPI` exports under these names (C linkage).
extern "C" {
using KXInterfaceVersionFunction = std::int32_t (*)();
using KXCreateFunction = KXDevice* (*)(std::int32_t platform);
using KXDestroyFunction = void (*)(KXDevice* device);
using KXStatusStringFunction = const char* (*)(std::int32_t status);
/// `rotation`: nine doubles, X_rectified = rotation · X_raw. `table`: w x h entries, one for each pixel of the
/// rectified image.
using KXRectificationTableFunction = void (*)(const KXCalibIntrinsicsNonRectified* raw, const double* rotation,
                                              const KXCalibIntrinsicsRectified* rectified, std::uint32_t* table);
/// `pitchPixels`: pixels from one row to the next in both images. `source` and `destination` must not overlap.
using KXRectifyBGRA8ToBGRA8Function = void (*)(const std::uint32_t* table, const std::uint8_t* source,
                                               std::int32_t pitchPixels, std::int32_t width, std::int32_t height,
                                               std::uint8_t* destination);

/// Exported by the companion library `CalibRectParamUpdater` as `KXUpdateThirdCameraRotation` and
/// `KXUpdatePlatformCameraRotation`: sets `out` to `in` with the rotation of that colour camera replaced. `rotation`:
/// nine doubles, from the depth camera's raw frame to the colour camera's raw frame. `in` and `out` may be the same.
using KXUpdateRotationFunction = void (*)(const KXCalibRectParameters* in, const double* rotation,
                                          KXCalibRectParameters* out);
}
