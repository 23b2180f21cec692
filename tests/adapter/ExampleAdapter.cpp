#include "kxapi/RearCameraSeam.h"
#include "kxapi/adapter/Conversions.h"
#include "kxapi/adapter/Library.h"
#include "tests/adapter/DifferentCamera.h"
#include "tests/adapter/ExampleBlock.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>

/// An example of an adapter: `DifferentCamera` with the interface of `KXAPI.h`.
namespace {

using kxadapter::transpose;

constexpr double kMillimetresPerMetre = 1000;
constexpr double kMicrosecondsPerMillisecond = 1000;
constexpr double kCorner = 0.5;
constexpr std::size_t kDepthBytes = 2, kColourBytes = 4;

/// The status values in both directions. A value in neither column keeps its number as an offset from `DC_OTHERS`.
constexpr std::pair<std::int32_t, int> kStatuses[] = {{KX_STATUS_OK, DC_OK},
                                                      {KX_STATUS_NOT_CALIBRATED, DC_UNCALIBRATED},
                                                      {KX_STATUS_NO_DEVICE, DC_NO_CAMERA},
                                                      {KX_STATUS_DEVICE_ERROR, DC_HARDWARE},
                                                      {KX_STATUS_DEVICE_BUSY, DC_IN_USE},
                                                      {KX_STATUS_FIRMWARE_TOO_OLD, DC_OLD_FIRMWARE}};

std::int32_t statusOf(int result) {
    for (const auto& [status, ours] : kStatuses) {
        if (ours == result) return status;
    }
    return result < DC_OTHERS ? DC_OTHERS - result : KX_STATUS_FAILED;
}

int resultOf(std::int32_t status) {
    for (const auto& [ours, result] : kStatuses) {
        if (ours == status) return result;
    }
    return DC_OTHERS - status;
}

/// The state that the adapter keeps for a device. It is the handle of every interface.
struct Device {
    void* camera = dcNew();
    DcPlan plan{};
    std::array<kxadapter::PackedImage, 4> pictures;
    std::array<double, 9> rearRectification{};
    ExampleBlock block;
};

Device& deviceOf(void* handle) {
    return *static_cast<Device*>(handle);
}
void* cameraOf(void* handle) {
    return deviceOf(handle).camera;
}
bool ok(int result) {
    return result == DC_OK;
}
void* part(void* handle, const char* name) {
    return dcHasPart(cameraOf(handle), name) != 0 ? handle : nullptr;
}

KXCalibIntrinsicsRectified intrinsics(const DcPinhole& in) {
    return {static_cast<float>(in.focal[0]),
            static_cast<float>(in.focal[1]),
            static_cast<float>(in.principal[0] - kCorner),
            static_cast<float>(in.principal[1] - kCorner),
            static_cast<std::int32_t>(in.size[0]),
            static_cast<std::int32_t>(in.size[1])};
}

DcPinhole pinhole(double fx, double fy, double cx, double cy, std::int32_t w, std::int32_t h) {
    return {{fx, fy}, {cx + kCorner, cy + kCorner}, {static_cast<double>(w), static_cast<double>(h)}};
}

bool readPose(int (*read)(void*, DcPose*), void* handle, KXCalibExtrinsics* out) {
    DcPose pose{};
    if (!ok(read(cameraOf(handle), &pose))) return false;
    transpose(pose.rotation, out->rotation);
    for (int i = 0; i < 3; ++i)
        out->translation[i] = static_cast<float>(pose.metres[i] * kMillimetresPerMetre);
    return true;
}

bool readIntrinsics(DcStream stream, void* handle, KXCalibIntrinsicsRectified* out) {
    DcPinhole found{};
    const bool good = ok(dcPinhole(cameraOf(handle), stream, &found));
    if (good) *out = intrinsics(found);
    return good;
}

std::int32_t width(void* handle, DcStream stream) {
    std::int32_t w = 0, h = 0;
    return ok(dcSize(cameraOf(handle), stream, &w, &h)) ? w : 0;
}

std::int32_t height(void* handle, DcStream stream) {
    std::int32_t w = 0, h = 0;
    return ok(dcSize(cameraOf(handle), stream, &w, &h)) ? h : 0;
}

std::uint8_t* picture(void* handle, DcStream stream, std::size_t bytesPerPixel) {
    const DcPicture found = dcPicture(cameraOf(handle), stream);
    const auto rows = static_cast<std::size_t>(found.height), columns = static_cast<std::size_t>(found.width);
    return deviceOf(handle).pictures[stream].take(found.pixels, columns * bytesPerPixel, rows,
                                                  static_cast<std::size_t>(found.pitchBytes));
}

const std::uint16_t* picture16(void* handle, DcStream stream) {
    return reinterpret_cast<const std::uint16_t*>(picture(handle, stream, kDepthBytes));
}

/// Swaps red and blue, because `KXAPI.h` requires blue first.
const std::uint8_t* thirdImage(void* handle) {
    std::uint8_t* pixels = picture(handle, DC_COLOUR, kColourBytes);
    if (pixels == nullptr) return nullptr;
    const std::size_t count = kColourBytes * static_cast<std::size_t>(width(handle, DC_COLOUR)) *
                              static_cast<std::size_t>(height(handle, DC_COLOUR));
    for (std::size_t i = 0; i < count; i += kColourBytes)
        std::swap(pixels[i], pixels[i + 2]);
    return pixels;
}

kxadapter::DeviceFunctions deviceFunctions() {
    kxadapter::DeviceFunctions f{};
    f.openDevice = [](void* d, std::int32_t) { return ok(dcConnect(cameraOf(d))); };
    f.initDevice = [](void*) { return true; };
    f.firmwareVersionText = [](void* d) { return dcText(cameraOf(d), "firmware"); };
    f.softwareVersionText = [](void* d) { return dcText(cameraOf(d), "software"); };
    f.serialNumber = [](void* d, std::uint32_t* out) {
        const std::int64_t serial = dcSerial(cameraOf(d));
        if (serial >= 0) *out = static_cast<std::uint32_t>(serial);
        return serial >= 0;
    };
    f.hardwareControl = [](void* d) { return part(d, "hardware"); };
    f.thirdCamera = [](void* d) { return part(d, "colour"); };
    f.emitterControl = [](void* d) { return part(d, "emitter"); };
    f.platformCamera = [](void* d) { return part(d, "rear"); };
    f.privateInterface = [](void* d) { return part(d, "flash"); };
    f.startCapture = [](void* d) { return ok(dcRun(cameraOf(d), &deviceOf(d).plan)); };
    f.stopCapture = [](void* d) { return ok(dcPause(cameraOf(d))); };
    f.resumeDevice = [](void* d) { return ok(dcContinue(cameraOf(d))); };
    f.grab = [](void* d, bool wait) { return ok(dcNext(cameraOf(d), wait ? 1 : 0)); };
    f.lastStatus = [](void* d) { return statusOf(dcLastResult(cameraOf(d))); };
    f.calibrationValid = [](void* d) { return dcIsCalibrated(cameraOf(d)) != 0; };
    f.rectifiedLRIntrinsics = [](void* d, KXCalibIntrinsicsRectified* out) { return readIntrinsics(DC_LEFT, d, out); };
    f.zIntrinsics = [](void* d, KXCalibIntrinsicsRectified* out) { return readIntrinsics(DC_DEPTH, d, out); };
    f.rectParameters = [](void* d, KXCalibRectParameters* out) {
        ExampleBlock& block = deviceOf(d).block;
        if (!ok(dcReadFlash(cameraOf(d), block.bytes()))) return false;
        *out = block.small();
        return true;
    };
    return f;
}

/// The library starts all streams at once, so the settings are kept until then.
void addStreams(kxadapter::DeviceFunctions* f) {
    f->setDepthStreamMode = [](void* d, bool rectified, std::int32_t w, std::int32_t h, std::int32_t rate,
                               std::int32_t format) {
        DcPlan& plan = deviceOf(d).plan;
        plan.depthSize[0] = w;
        plan.depthSize[1] = h;
        plan.depthRate = rate;
        return rectified && format == KX_PIXEL_FORMAT_16_BIT;
    };
    f->setDepthEnabled = [](void* d, bool on) { return (deviceOf(d).plan.depth = on, true); };
    f->setLeftEnabled = [](void* d, bool on) { return (deviceOf(d).plan.left = on, true); };
    f->setRightEnabled = [](void* d, bool on) { return (deviceOf(d).plan.right = on, true); };
    f->setStreamOption = [](void* d, bool on) { return (deviceOf(d).plan.synchronised = on, true); };
    f->depthEnabled = [](void* d) { return deviceOf(d).plan.depth; };
    f->leftEnabled = [](void* d) { return deviceOf(d).plan.left; };
    f->rightEnabled = [](void* d) { return deviceOf(d).plan.right; };
    f->depthImage = [](void* d) { return picture16(d, DC_DEPTH); };
    f->leftImage = [](void* d) { return picture16(d, DC_LEFT); };
    f->rightImage = [](void* d) { return picture16(d, DC_RIGHT); };
    f->depthWidth = [](void* d) { return width(d, DC_DEPTH); };
    f->depthHeight = [](void* d) { return height(d, DC_DEPTH); };
    f->lrWidth = [](void* d) { return width(d, DC_LEFT); };
    f->lrHeight = [](void* d) { return height(d, DC_LEFT); };
}

kxadapter::ThirdCameraFunctions thirdFunctions() {
    kxadapter::ThirdCameraFunctions f{};
    f.setThirdStreamMode = [](void* d, bool rectified, std::int32_t w, std::int32_t h, std::int32_t rate,
                              std::int32_t format) {
        DcPlan& plan = deviceOf(d).plan;
        plan.colourSize[0] = w;
        plan.colourSize[1] = h;
        plan.colourRate = rate;
        return rectified && format == KX_PIXEL_FORMAT_BGRA8;
    };
    f.setThirdEnabled = [](void* d, bool on) { return (deviceOf(d).plan.colour = on, true); };
    f.thirdEnabled = [](void* d) { return deviceOf(d).plan.colour; };
    f.thirdImage = thirdImage;
    f.thirdWidth = [](void* d) { return width(d, DC_COLOUR); };
    f.thirdHeight = [](void* d) { return height(d, DC_COLOUR); };
    f.rectifiedThirdIntrinsics = [](void* d, KXCalibIntrinsicsRectified* out) {
        return readIntrinsics(DC_COLOUR, d, out);
    };
    f.zToThirdExtrinsics = [](void* d, KXCalibExtrinsics* out) { return readPose(dcColourPose, d, out); };
    return f;
}

kxadapter::HardwareControlFunctions hardwareFunctions() {
    kxadapter::HardwareControlFunctions f{};
    f.setAutoExposure = [](void* d, std::int32_t, bool on) { return ok(dcSet(cameraOf(d), "auto-exposure", on)); };
    f.setGain = [](void* d, float value, std::int32_t) { return ok(dcSet(cameraOf(d), "gain", double{value})); };
    f.setExposure = [](void* d, float ms, std::int32_t) {
        return ok(dcSet(cameraOf(d), "exposure-us", double{ms} * kMicrosecondsPerMillisecond));
    };
    f.setHardwareOption = [](void* d, bool on, std::int32_t) { return ok(dcSet(cameraOf(d), "option-16", on)); };
    return f;
}

kxadapter::PlatformCameraFunctions platformFunctions() {
    kxadapter::PlatformCameraFunctions f{};
    f.setPlatformMode = [](void*, std::int32_t, std::int32_t, std::int32_t) { return true; };
    f.nonRectifiedIntrinsics = [](void* d, KXCalibIntrinsicsNonRectified* out) {
        DcLens lens{};
        if (!ok(dcRearLens(cameraOf(d), &lens))) return false;
        const KXCalibIntrinsicsRectified k = intrinsics(lens.pinhole);
        const auto narrow = [](double number) { return static_cast<float>(number); };
        *out = {k.fx,
                k.fy,
                k.cx,
                k.cy,
                k.w,
                k.h,
                narrow(lens.radial[0]),
                narrow(lens.radial[1]),
                narrow(lens.tangential[0]),
                narrow(lens.tangential[1]),
                narrow(lens.radial[2])};
        return true;
    };
    f.rectifiedIntrinsics = [](void* d, KXCalibIntrinsicsRectified* out) {
        DcPinhole found{};
        if (!ok(dcRearPinhole(cameraOf(d), &found))) return false;
        *out = intrinsics(found);
        return true;
    };
    f.rectificationRotation = [](void* d) -> const double* {
        const double* columns = dcRearRectification(cameraOf(d));
        if (columns == nullptr) return nullptr;
        transpose(columns, deviceOf(d).rearRectification.data());
        return deviceOf(d).rearRectification.data();
    };
    f.zToPlatformExtrinsics = [](void* d, KXCalibExtrinsics* out) { return readPose(dcRearPose, d, out); };
    return f;
}

kxadapter::PrivateFunctions privateFunctions() {
    kxadapter::PrivateFunctions f{};
    f.writeRectParameters = [](void* d, const KXCalibRectParameters* parameters, bool permanent) {
        ExampleBlock& block = deviceOf(d).block;
        block.takeSmall(*parameters);
        return ok(dcWriteFlash(cameraOf(d), block.bytes(), permanent ? 1 : 0));
    };
    f.commitCalibration = [](void* d) { return ok(dcMakeValid(cameraOf(d))); };
    return f;
}

void fillTable(const KXCalibIntrinsicsNonRectified* raw, const double* rotation,
               const KXCalibIntrinsicsRectified* rectified, std::uint32_t* table) {
    const DcLens lens{
        pinhole(raw->fx, raw->fy, raw->cx, raw->cy, raw->w, raw->h), {raw->k1, raw->k2, raw->k3}, {raw->p1, raw->p2}};
    const DcPinhole out =
        pinhole(rectified->fx, rectified->fy, rectified->cx, rectified->cy, rectified->w, rectified->h);
    std::array<double, 9> columns{};
    transpose(rotation, columns.data());
    dcRearTable(&lens, columns.data(), &out, table);
}

kxadapter::Library adapted() {
    kxadapter::Library all{};
    all.create = [](std::int32_t) -> void* { return new Device; };
    all.destroy = [](void* handle) {
        dcFree(cameraOf(handle));
        delete static_cast<Device*>(handle);
    };
    all.statusText = [](std::int32_t status) { return dcResultText(resultOf(status)); };
    all.rectificationTable = fillTable;
    all.rectifyBGRA8ToBGRA8 = [](const std::uint32_t* table, const std::uint8_t* source, std::int32_t pitch,
                                 std::int32_t w, std::int32_t h,
                                 std::uint8_t* destination) { dcRectify(table, source, pitch, w, h, destination); };
    all.device = deviceFunctions();
    addStreams(&all.device);
    all.hardware = hardwareFunctions();
    all.third = thirdFunctions();
    all.emitter.setEmitter = [](void* d, bool on) { return ok(dcSet(cameraOf(d), "emitter", on)); };
    all.platform = platformFunctions();
    all.access = privateFunctions();
    return all;
}

}  // namespace

const kxadapter::Library& kxadapter::library() {
    static const Library all = adapted();
    return all;
}

/// A real adapter does not export this. Here it provides the simulated rear camera.
DC_EXPORT RearCameraSource* KXSimRearCamera() {
    return static_cast<RearCameraSource*>(dcRearCamera());
}
