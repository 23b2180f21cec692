#pragma once

#include "kxapi/Library.h"
#include "kxapi/RotationUpdater.h"

#include <atomic>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace fieldcal::testing {

using Rectified = KXCalibIntrinsicsRectified;
using NonRectified = KXCalibIntrinsicsNonRectified;
using int32 = std::int32_t;

/// A camera module with all its interfaces that records every call that can change or start something, in order, and
/// fails on request. `calls` holds "operation(arguments)"; the plain getters of sizes, images and flags are not
/// recorded.
class FakeKxDevice final : public KXDevice,
                           public KXThirdCamera,
                           public KXHardwareControl,
                           public KXEmitterControl,
                           public KXPlatformCamera,
                           public KXPrivate {
public:
    /// The n-th call (from 1) of `operation` fails with `failStatus`.
    void failCall(const std::string& operation, int n, int32 failStatus) { failures_[operation] = {n, failStatus}; }

    // The module.
    bool openDevice(int32 index) override { return call("openDevice", index); }
    bool initDevice() override { return call("initDevice"); }
    const char* firmwareVersionText() override { return call("firmwareVersionText") ? "1.27.11" : nullptr; }
    const char* softwareVersionText() override { return call("softwareVersionText") ? "2.2.0" : nullptr; }
    bool serialNumber(std::uint32_t* out) override { return give("serialNumber", 550101U, out); }
    KXHardwareControl* hardwareControl() override { return call("hardwareControl") ? this : nullptr; }
    KXThirdCamera* thirdCamera() override { return call("thirdCamera") ? this : nullptr; }
    KXEmitterControl* emitterControl() override { return call("emitterControl") ? this : nullptr; }
    KXPlatformCamera* platformCamera() override { return call("platformCamera") ? this : nullptr; }
    KXPrivate* privateInterface() override { return call("privateInterface") ? this : nullptr; }
    bool setDepthStreamMode(bool rectify, int32 w, int32 h, int32 fps, int32 format) override {
        return call("setDepthStreamMode", rectify, w, h, fps, format);
    }
    bool setDepthEnabled(bool on) override { return call("setDepthEnabled", on); }
    bool depthEnabled() override { return depthOn; }
    bool setLeftEnabled(bool on) override { return call("setLeftEnabled", on); }
    bool leftEnabled() override { return true; }
    bool setRightEnabled(bool on) override { return call("setRightEnabled", on); }
    bool rightEnabled() override { return true; }
    bool setStreamOption(bool on) override { return call("setStreamOption", on); }
    bool startCapture() override { return call("startCapture"); }
    bool stopCapture() override { return call("stopCapture"); }
    bool grab(bool wait) override {
        if (onGrab) onGrab();
        return call("grab", wait);
    }
    const std::uint16_t* depthImage() override { return depth.data(); }
    const std::uint16_t* leftImage() override { return left.data(); }
    const std::uint16_t* rightImage() override { return right.data(); }
    int32 depthWidth() override { return 628; }
    int32 depthHeight() override { return 468; }
    int32 lrWidth() override { return lrWidthValue; }
    int32 lrHeight() override { return 468; }
    int32 lastStatus() override { return status; }
    bool calibrationValid() override { return calibrated; }
    bool rectifiedLRIntrinsics(Rectified* out) override { return give("rectifiedLRIntrinsics", leftRight, out); }
    bool zIntrinsics(Rectified* out) override { return give("zIntrinsics", z, out); }
    bool rectParameters(KXCalibRectParameters* out) override { return give("rectParameters", flash, out); }
    /// The module uses the rotations of its block once a companion has entered some.
    bool resumeDevice() override {
        load(flash.reserved0, flash.rectificationThird, &zToThird);
        load(flash.reserved0 + 72, flash.rectificationPlatform, &zToPlatform);
        return call("resumeDevice");
    }

    // The camera inside the module.
    bool setThirdStreamMode(bool rectify, int32 w, int32 h, int32 fps, int32 format) override {
        return call("setThirdStreamMode", rectify, w, h, fps, format);
    }
    bool setThirdEnabled(bool on) override { return call("setThirdEnabled", on); }
    bool thirdEnabled() override { return thirdOn; }
    const std::uint8_t* thirdImage() override { return thirdPixels.data(); }
    int32 thirdWidth() override { return thirdWidthValue; }
    int32 thirdHeight() override { return thirdHeightValue; }
    bool rectifiedThirdIntrinsics(Rectified* out) override { return give("rectifiedThirdIntrinsics", third, out); }
    bool zToThirdExtrinsics(KXCalibExtrinsics* out) override { return give("zToThirdExtrinsics", zToThird, out); }

    // Imagers and emitter.
    bool setAutoExposure(int32 imagers, bool on) override { return call("setAutoExposure", imagers, on); }
    bool setGain(float value, int32 imagers) override { return call("setGain", value, imagers); }
    bool setExposure(float value, int32 imagers) override { return call("setExposure", value, imagers); }
    bool setHardwareOption(bool on, int32 value) override { return call("setHardwareOption", on, value); }
    bool setEmitter(bool on) override { return call("setEmitter", on); }

    // The flash.
    bool writeRectParameters(const KXCalibRectParameters* block, bool permanent) override {
        if (onWrite) onWrite();
        if (!call("writeRectParameters", permanent)) return false;
        written = *block;
        return true;
    }
    bool commitCalibration() override {
        if (!call("commitCalibration")) return false;
        flash = written;
        return true;
    }

    // The rear camera's calibration.
    bool setPlatformMode(int32 mode, int32 w, int32 h) override { return call("setPlatformMode", mode, w, h); }
    bool nonRectifiedIntrinsics(NonRectified* out) override { return give("nonRectifiedIntrinsics", raw, out); }
    bool rectifiedIntrinsics(Rectified* out) override { return give("rectifiedIntrinsics", rectified, out); }
    const double* rectificationRotation() override { return call("rectificationRotation") ? rotation : nullptr; }
    bool zToPlatformExtrinsics(KXCalibExtrinsics* out) override {
        return give("zToPlatformExtrinsics", zToPlatform, out);
    }

    std::vector<std::string> calls;
    int32 status = 0;
    bool calibrated = true;
    bool depthOn = true;
    bool thirdOn = true;
    std::atomic<bool> destroyed{false};
    int32 lrWidthValue = 628;
    int32 thirdWidthValue = 640;
    int32 thirdHeightValue = 480;
    std::vector<std::uint16_t> left = std::vector<std::uint16_t>(std::size_t{628} * 468, 500);
    std::vector<std::uint16_t> right = std::vector<std::uint16_t>(std::size_t{628} * 468, 501);
    std::vector<std::uint16_t> depth = std::vector<std::uint16_t>(std::size_t{628} * 468, 1502);
    std::vector<std::uint8_t> thirdPixels = std::vector<std::uint8_t>(std::size_t{640} * 480 * 4, 77);
    Rectified leftRight{580, 576, 314, 234, 628, 468};
    Rectified z{581, 577, 315, 235, 628, 468};
    Rectified third{1160, 960, 320, 240, 640, 480};
    KXCalibExtrinsics zToThird{{1, 0, 0, 0, 1, 0, 0, 0, 1}, {58, -2, 1}};
    NonRectified raw{1000, 1000, 640, 360, 1280, 720, 0.1F, 0.2F, 0.3F, 0.4F, 0.5F};
    Rectified rectified{1160, 1145, 650, 355, 1280, 720};
    KXCalibExtrinsics zToPlatform{{1, 0, 0, 0, 1, 0, 0, 0, 1}, {-30, 12, 4}};
    double rotation[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    std::function<void()> onGrab;
    std::function<void()> onWrite;
    KXCalibRectParameters flash = unitBlock();
    KXCalibRectParameters written = flash;

    /// Returns a block of recognisable bytes around three identity matrices.
    static KXCalibRectParameters unitBlock() {
        KXCalibRectParameters block{};
        std::memset(&block, 0x5A, sizeof(block));
        for (float* matrix : {block.rectificationInfrared, block.rectificationThird, block.rectificationPlatform}) {
            for (int i = 0; i < 9; ++i)
                matrix[i] = i % 4 == 0 ? 1.0F : 0.0F;
        }
        return block;
    }

private:
    /// Mc · Q · Miᵀ, with the nine numbers of Q at `stored`.
    void load(const std::uint8_t* stored, const float* colour, KXCalibExtrinsics* out) const {
        double q[9];
        std::memcpy(q, stored, sizeof(q));
        if (stored[0] == 0x5A) return;
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                double sum = 0;
                for (int i = 0; i < 9; ++i)
                    sum += colour[row * 3 + i / 3] * q[i] * flash.rectificationInfrared[column * 3 + i % 3];
                out->rotation[row * 3 + column] = static_cast<float>(sum);
            }
        }
    }

    /// Records the call and gives its result.
    template <typename... Arguments>
    bool call(const std::string& operation, Arguments... arguments) {
        std::ostringstream text;
        [[maybe_unused]] const char* separator = "";
        ((text << std::exchange(separator, ",") << arguments), ...);
        calls.push_back(operation + "(" + text.str() + ")");
        const int n = ++counts_[operation];
        const auto failure = failures_.find(operation);
        if (failure == failures_.end() || failure->second.first != n) return true;
        status = failure->second.second;
        return false;
    }
    template <typename Record>
    bool give(const char* operation, const Record& record, Record* out) {
        *out = record;
        return call(operation);
    }

    std::map<std::string, std::pair<int, int32>> failures_;
    std::map<std::string, int> counts_;
};

/// The library around the fake device `current`. Its rectification copies the image; `rectifyCalls` counts it.
struct FakeLibrary {
    FakeLibrary() {
        rectifyCalls = 0;
        library->create = [](int32) -> KXDevice* { return current; };
        library->destroy = [](KXDevice*) { current->destroyed = true; };
        library->statusString = [](int32) { return "STATUS %2 TEXT"; };
        library->rectificationTable = [](const NonRectified*, const double*, const Rectified* to,
                                         std::uint32_t* table) {
            for (int32 i = 0; i < to->w * to->h; ++i)
                table[i] = static_cast<std::uint32_t>(i);
        };
        library->rectifyBGRA8ToBGRA8 = [](const std::uint32_t* table, const std::uint8_t* source, int32, int32 w,
                                          int32 h, std::uint8_t* destination) {
            ++rectifyCalls;
            for (std::size_t i = 0; i < static_cast<std::size_t>(w) * static_cast<std::size_t>(h); ++i)
                std::memcpy(destination + 4 * i, source + std::size_t{4} * table[i], 4);
        };
    }

    std::shared_ptr<KXLibrary> library = std::make_shared<KXLibrary>();
    inline static FakeKxDevice* current = nullptr;
    inline static int rectifyCalls = 0;
};

/// A companion library that keeps the rotations at the block's start: the third camera's nine doubles, then the
/// platform camera's.
struct FakeUpdater {
    FakeUpdater() {
        library->updateThirdCamera = [](const KXCalibRectParameters* in, const double* rotation,
                                        KXCalibRectParameters* out) { put(in, rotation, 0, out); };
        library->updatePlatformCamera = [](const KXCalibRectParameters* in, const double* rotation,
                                           KXCalibRectParameters* out) { put(in, rotation, 72, out); };
    }
    static void put(const KXCalibRectParameters* in, const double* rotation, int at, KXCalibRectParameters* out) {
        if (out != in) *out = *in;
        std::memcpy(out->reserved0 + at, rotation, 72);
    }
    std::shared_ptr<KXRotationUpdater> library = std::make_shared<KXRotationUpdater>();
};

}  // namespace fieldcal::testing
