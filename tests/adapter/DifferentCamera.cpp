#include "tests/adapter/DifferentCamera.h"

#include "kxapi/KXAPI.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <dlfcn.h>
#include <string>
#include <vector>

/// This library wraps the simulated module, so that images, calibration and faults are the same.
namespace {

constexpr std::size_t kRowUnit = 64;
constexpr double kMillimetresPerMetre = 1000;
constexpr double kCorner = 0.5;
constexpr double kMicrosecondsPerMillisecond = 1000;
constexpr std::int32_t kBothImagers = 3;
constexpr std::int32_t kOption = 16;
constexpr std::int32_t kRearWidth = 1280, kRearHeight = 720;
constexpr std::array<int, 12> kResults{DC_OK,       -1001,     -1002, -1003, DC_UNCALIBRATED, DC_NO_CAMERA,
                                       DC_HARDWARE, DC_IN_USE, -1008, -1009, -1010,           DC_OLD_FIRMWARE};

void* inModule(const char* file, const char* name) {
    // The name without a folder would find the adapter itself.
    void* handle = dlopen(file, RTLD_NOW | RTLD_LOCAL);
    return handle != nullptr ? dlsym(handle, name) : nullptr;
}

template <typename Function>
Function simulated(const char* name) {
    return reinterpret_cast<Function>(inModule(SIMULATED_MODULE, name));
}

/// Returns the result for a status: `DC_OTHERS` minus the number, unless it has a name here.
int resultOf(std::int32_t status) {
    return status >= 0 && status < static_cast<std::int32_t>(kResults.size())
               ? kResults[static_cast<std::size_t>(status)]
               : DC_OTHERS - status;
}

std::int32_t statusOf(int result) {
    const auto found = std::find(kResults.begin(), kResults.end(), result);
    return found != kResults.end() ? static_cast<std::int32_t>(found - kResults.begin()) : DC_OTHERS - result;
}

void columns(const float* rows, double* out) {
    for (int i = 0; i < 9; ++i)
        out[i] = static_cast<double>(rows[3 * (i % 3) + i / 3]);
}

void columns(const double* rows, double* out) {
    for (int i = 0; i < 9; ++i)
        out[i] = rows[3 * (i % 3) + i / 3];
}

DcPinhole pinhole(float fx, float fy, float cx, float cy, std::int32_t w, std::int32_t h) {
    return {{fx, fy},
            {static_cast<double>(cx) + kCorner, static_cast<double>(cy) + kCorner},
            {static_cast<double>(w), static_cast<double>(h)}};
}

DcPose pose(const KXCalibExtrinsics& in) {
    DcPose out{};
    columns(in.rotation, out.rotation);
    for (int i = 0; i < 3; ++i)
        out.metres[i] = static_cast<double>(in.translation[i]) / kMillimetresPerMetre;
    return out;
}

KXCalibIntrinsicsRectified rectified(const DcPinhole& in) {
    return {static_cast<float>(in.focal[0]),
            static_cast<float>(in.focal[1]),
            static_cast<float>(in.principal[0] - kCorner),
            static_cast<float>(in.principal[1] - kCorner),
            static_cast<std::int32_t>(in.size[0]),
            static_cast<std::int32_t>(in.size[1])};
}

/// An image with padded rows; in a colour image red comes first.
struct Padded {
    std::vector<std::uint8_t> bytes;

    DcPicture of(const void* pixels, std::int32_t width, std::int32_t height, std::size_t bytesPerPixel) {
        const std::size_t row = static_cast<std::size_t>(width) * bytesPerPixel;
        const std::size_t pitch = (row / kRowUnit + 2) * kRowUnit;
        if (pixels == nullptr) return {nullptr, width, height, static_cast<std::int32_t>(pitch)};
        bytes.assign(pitch * static_cast<std::size_t>(height), 0xEE);
        for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
            std::uint8_t* out = bytes.data() + y * pitch;
            std::memcpy(out, static_cast<const std::uint8_t*>(pixels) + y * row, row);
            for (std::size_t x = 0; bytesPerPixel == 4 && x < row; x += 4)
                std::swap(out[x], out[x + 2]);
        }
        return {bytes.data(), width, height, static_cast<std::int32_t>(pitch)};
    }
};

struct Camera {
    KXDevice* device = nullptr;
    KXThirdCamera* colour = nullptr;
    KXPlatformCamera* rear = nullptr;
    KXHardwareControl* hardware = nullptr;
    KXEmitterControl* emitter = nullptr;
    KXPrivate* flash = nullptr;
    std::array<Padded, 4> pictures;
    std::array<double, 9> rearRectification{};
    bool refused = false;  ///< the previous call was refused by this library itself

    int done(bool good) {
        refused = false;
        return good ? DC_OK : resultOf(device->lastStatus());
    }
};

Camera& cameraOf(void* handle) {
    return *static_cast<Camera*>(handle);
}

/// Returns a byte of the block that is reserved for the manufacturer.
std::uint8_t ownByte(std::size_t index) {
    return static_cast<std::uint8_t>(index * 37 + 11);
}

bool isOwnByte(std::size_t index) {
    const bool second = index >= DC_BLOCK_SECOND_HALF && index < DC_BLOCK_SECOND_HALF + DC_BLOCK_HALF;
    return !second && index < DC_BLOCK_FIRST_HALF;
}

void toLarge(const KXCalibRectParameters& block, std::uint8_t* out) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(&block);
    for (std::size_t i = 0; i < DC_BLOCK_SIZE; ++i)
        out[i] = ownByte(i);
    std::memcpy(out + DC_BLOCK_FIRST_HALF, bytes, DC_BLOCK_HALF);
    std::memcpy(out + DC_BLOCK_SECOND_HALF, bytes + DC_BLOCK_HALF, DC_BLOCK_HALF);
}

KXCalibRectParameters fromLarge(const std::uint8_t* in) {
    KXCalibRectParameters block{};
    auto* bytes = reinterpret_cast<std::uint8_t*>(&block);
    std::memcpy(bytes, in + DC_BLOCK_FIRST_HALF, DC_BLOCK_HALF);
    std::memcpy(bytes + DC_BLOCK_HALF, in + DC_BLOCK_SECOND_HALF, DC_BLOCK_HALF);
    return block;
}

bool runColour(Camera& camera, const DcPlan& plan) {
    return camera.colour != nullptr && camera.colour->setThirdEnabled(plan.colour) &&
           camera.colour->setThirdStreamMode(true, plan.colourSize[0], plan.colourSize[1], plan.colourRate,
                                             KX_PIXEL_FORMAT_BGRA8);
}

bool runDepth(Camera& camera, const DcPlan& plan) {
    KXDevice& device = *camera.device;
    return device.setDepthStreamMode(true, plan.depthSize[0], plan.depthSize[1], plan.depthRate,
                                     KX_PIXEL_FORMAT_16_BIT) &&
           device.setStreamOption(plan.synchronised) && device.setRightEnabled(plan.right) &&
           device.setLeftEnabled(plan.left) && device.setDepthEnabled(plan.depth);
}

}  // namespace

void* dcNew() {
    static const auto create = simulated<KXCreateFunction>("KXCreate");
    auto* camera = new Camera;
    camera->device = create(0);
    return camera;
}

void dcFree(void* handle) {
    static const auto destroy = simulated<KXDestroyFunction>("KXDestroy");
    destroy(cameraOf(handle).device);
    delete static_cast<Camera*>(handle);
}

int dcConnect(void* handle) {
    Camera& camera = cameraOf(handle);
    return camera.done(camera.device->openDevice(-1) && camera.device->initDevice());
}

int dcLastResult(void* handle) {
    Camera& camera = cameraOf(handle);
    return camera.refused ? DC_REFUSED : resultOf(camera.device->lastStatus());
}

const char* dcResultText(int result) {
    static const auto text = simulated<KXStatusStringFunction>("KXStatusString");
    return text(statusOf(result));
}

const char* dcText(void* handle, const char* what) {
    KXDevice& device = *cameraOf(handle).device;
    return std::string(what) == "firmware" ? device.firmwareVersionText() : device.softwareVersionText();
}

std::int64_t dcSerial(void* handle) {
    std::uint32_t serial = 0;
    return cameraOf(handle).device->serialNumber(&serial) ? static_cast<std::int64_t>(serial) : -1;
}

int dcHasPart(void* handle, const char* part) {
    Camera& camera = cameraOf(handle);
    camera.refused = false;
    const std::string name = part;
    if (name == "hardware") return (camera.hardware = camera.device->hardwareControl()) != nullptr ? 1 : 0;
    if (name == "colour") return (camera.colour = camera.device->thirdCamera()) != nullptr ? 1 : 0;
    if (name == "emitter") return (camera.emitter = camera.device->emitterControl()) != nullptr ? 1 : 0;
    if (name == "rear") return (camera.rear = camera.device->platformCamera()) != nullptr ? 1 : 0;
    return (camera.flash = camera.device->privateInterface()) != nullptr ? 1 : 0;
}

int dcIsCalibrated(void* handle) {
    return cameraOf(handle).device->calibrationValid() ? 1 : 0;
}

int dcSet(void* handle, const char* what, double value) {
    Camera& camera = cameraOf(handle);
    const std::string name = what;
    const auto number = static_cast<float>(value);
    if (name == "auto-exposure") return camera.done(camera.hardware->setAutoExposure(kBothImagers, value != 0));
    if (name == "gain") return camera.done(camera.hardware->setGain(number, kBothImagers));
    if (name == "exposure-us") {
        return camera.done(
            camera.hardware->setExposure(static_cast<float>(value / kMicrosecondsPerMillisecond), kBothImagers));
    }
    if (name == "emitter") return camera.done(camera.emitter->setEmitter(value != 0));
    return camera.done(camera.hardware->setHardwareOption(value != 0, kOption));
}

int dcRun(void* handle, const DcPlan* plan) {
    Camera& camera = cameraOf(handle);
    return camera.done(runColour(camera, *plan) && runDepth(camera, *plan) && camera.device->startCapture());
}

int dcPause(void* handle) {
    return cameraOf(handle).done(cameraOf(handle).device->stopCapture());
}

int dcContinue(void* handle) {
    return cameraOf(handle).done(cameraOf(handle).device->resumeDevice());
}

int dcNext(void* handle, int wait) {
    return cameraOf(handle).done(cameraOf(handle).device->grab(wait != 0));
}

int dcSize(void* handle, DcStream stream, std::int32_t* width, std::int32_t* height) {
    Camera& camera = cameraOf(handle);
    const bool colour = stream == DC_COLOUR, depth = stream == DC_DEPTH;
    *width = colour ? camera.colour->thirdWidth() : depth ? camera.device->depthWidth() : camera.device->lrWidth();
    *height = colour ? camera.colour->thirdHeight() : depth ? camera.device->depthHeight() : camera.device->lrHeight();
    return camera.done(*width > 0 && *height > 0);
}

DcPicture dcPicture(void* handle, DcStream stream) {
    Camera& camera = cameraOf(handle);
    std::int32_t width = 0, height = 0;
    dcSize(handle, stream, &width, &height);
    const void* pixels = stream == DC_COLOUR  ? static_cast<const void*>(camera.colour->thirdImage())
                         : stream == DC_DEPTH ? static_cast<const void*>(camera.device->depthImage())
                         : stream == DC_LEFT  ? static_cast<const void*>(camera.device->leftImage())
                                              : static_cast<const void*>(camera.device->rightImage());
    return camera.pictures[stream].of(pixels, width, height, stream == DC_COLOUR ? 4 : 2);
}

int dcPinhole(void* handle, DcStream stream, DcPinhole* out) {
    Camera& camera = cameraOf(handle);
    KXCalibIntrinsicsRectified k{};
    const bool good = stream == DC_COLOUR  ? camera.colour->rectifiedThirdIntrinsics(&k)
                      : stream == DC_DEPTH ? camera.device->zIntrinsics(&k)
                                           : camera.device->rectifiedLRIntrinsics(&k);
    *out = pinhole(k.fx, k.fy, k.cx, k.cy, k.w, k.h);
    return camera.done(good);
}

int dcColourPose(void* handle, DcPose* out) {
    Camera& camera = cameraOf(handle);
    KXCalibExtrinsics extrinsics{};
    const bool good = camera.colour->zToThirdExtrinsics(&extrinsics);
    *out = pose(extrinsics);
    return camera.done(good);
}

int dcRearLens(void* handle, DcLens* raw) {
    Camera& camera = cameraOf(handle);
    KXCalibIntrinsicsNonRectified k{};
    const bool good =
        camera.rear->setPlatformMode(0, kRearWidth, kRearHeight) && camera.rear->nonRectifiedIntrinsics(&k);
    *raw = {pinhole(k.fx, k.fy, k.cx, k.cy, k.w, k.h), {k.k1, k.k2, k.k3}, {k.p1, k.p2}};
    return camera.done(good);
}

int dcRearPinhole(void* handle, DcPinhole* out) {
    Camera& camera = cameraOf(handle);
    KXCalibIntrinsicsRectified k{};
    const bool good = camera.rear->setPlatformMode(1, kRearWidth, kRearHeight) && camera.rear->rectifiedIntrinsics(&k);
    *out = pinhole(k.fx, k.fy, k.cx, k.cy, k.w, k.h);
    return camera.done(good);
}

const double* dcRearRectification(void* handle) {
    Camera& camera = cameraOf(handle);
    const double* rows = camera.rear->rectificationRotation();
    if (rows == nullptr) return nullptr;
    columns(rows, camera.rearRectification.data());
    return camera.rearRectification.data();
}

int dcRearPose(void* handle, DcPose* out) {
    Camera& camera = cameraOf(handle);
    KXCalibExtrinsics extrinsics{};
    const bool good = camera.rear->zToPlatformExtrinsics(&extrinsics);
    *out = pose(extrinsics);
    return camera.done(good);
}

void dcRearTable(const DcLens* raw, const double* rectificationColumns, const DcPinhole* rectifiedPinhole,
                 std::uint32_t* table) {
    static const auto fill = simulated<KXRectificationTableFunction>("KXRectificationTable");
    const KXCalibIntrinsicsRectified k = rectified(raw->pinhole);
    const auto narrow = [](double number) { return static_cast<float>(number); };
    const KXCalibIntrinsicsNonRectified lens{k.fx,
                                             k.fy,
                                             k.cx,
                                             k.cy,
                                             k.w,
                                             k.h,
                                             narrow(raw->radial[0]),
                                             narrow(raw->radial[1]),
                                             narrow(raw->tangential[0]),
                                             narrow(raw->tangential[1]),
                                             narrow(raw->radial[2])};
    std::array<double, 9> rows{};
    columns(rectificationColumns, rows.data());
    const KXCalibIntrinsicsRectified out = rectified(*rectifiedPinhole);
    fill(&lens, rows.data(), &out, table);
}

void dcRectify(const std::uint32_t* table, const void* source, std::int32_t pitchPixels, std::int32_t width,
               std::int32_t height, void* destination) {
    static const auto rectify = simulated<KXRectifyBGRA8ToBGRA8Function>("KXRectifyBGRA8ToBGRA8");
    rectify(table, static_cast<const std::uint8_t*>(source), pitchPixels, width, height,
            static_cast<std::uint8_t*>(destination));
}

int dcReadFlash(void* handle, std::uint8_t* block) {
    Camera& camera = cameraOf(handle);
    KXCalibRectParameters small{};
    const bool good = camera.device->rectParameters(&small);
    toLarge(small, block);
    return camera.done(good);
}

int dcWriteFlash(void* handle, const std::uint8_t* block, int forGood) {
    Camera& camera = cameraOf(handle);
    for (std::size_t i = 0; i < DC_BLOCK_SIZE; ++i) {
        camera.refused = isOwnByte(i) && block[i] != ownByte(i);
        if (camera.refused) return DC_REFUSED;
    }
    const KXCalibRectParameters small = fromLarge(block);
    return camera.done(camera.flash->writeRectParameters(&small, forGood != 0));
}

int dcMakeValid(void* handle) {
    return cameraOf(handle).done(cameraOf(handle).flash->commitCalibration());
}

void dcTurn(const std::uint8_t* in, int camera, const double* turnColumns, std::uint8_t* out) {
    static const auto third =
        reinterpret_cast<KXUpdateRotationFunction>(inModule(SIMULATED_COMPANION, "KXUpdateThirdCameraRotation"));
    static const auto rear =
        reinterpret_cast<KXUpdateRotationFunction>(inModule(SIMULATED_COMPANION, "KXUpdatePlatformCameraRotation"));
    KXCalibRectParameters block = fromLarge(in);
    std::array<double, 9> rows{};
    columns(turnColumns, rows.data());
    (camera == 0 ? third : rear)(&block, rows.data(), &block);
    std::array<std::uint8_t, DC_BLOCK_SIZE> large{};
    toLarge(block, large.data());
    std::copy(large.begin(), large.end(), out);
}

void* dcRearCamera() {
    static const auto rear = simulated<void* (*)()>("KXSimRearCamera");
    return rear();
}
