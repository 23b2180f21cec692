#pragma once

#include "kxapi/Library.h"

#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace fieldcal::testing {

/// A camera module that records every call that can change or start something, in order, and fails on request.
/// `calls` holds "operation(arguments)"; the plain getters of sizes, pictures and flags are not recorded.
class FakeKxDevice final : public KXDevice {
public:
    FakeKxDevice() : third(*this), hardware(*this), emitter(*this), platform(*this) {
        left.assign(std::size_t{628} * 468, 500);
        right.assign(std::size_t{628} * 468, 501);
        depth.assign(std::size_t{628} * 468, 1502);
        thirdPixels.assign(std::size_t{640} * 480 * 4, 77);
    }

    /// The n-th call (from 1) of `operation` fails with `status`.
    void failCall(const std::string& operation, int n, std::int32_t failStatus) {
        failures_[operation] = {n, failStatus};
    }

    /// Records the call and gives its result.
    template <typename... Arguments>
    bool call(const std::string& operation, Arguments... arguments) {
        std::ostringstream text;
        [[maybe_unused]] const char* separator = "";
        ((text << std::exchange(separator, ",") << arguments), ...);
        calls.push_back(operation + "(" + text.str() + ")");
        const auto failure = failures_.find(operation);
        if (++counts_[operation], failure == failures_.end() || failure->second.first != counts_[operation])
            return true;
        status = failure->second.second;
        return false;
    }

    class Third final : public KXThirdCamera {
    public:
        explicit Third(FakeKxDevice& owner) : owner_(owner) {}
        bool setThirdStreamMode(bool rectified, std::int32_t w, std::int32_t h, std::int32_t fps,
                                std::int32_t format) override {
            return owner_.call("setThirdStreamMode", rectified, w, h, fps, format);
        }
        bool setThirdEnabled(bool on) override { return owner_.call("setThirdEnabled", on); }
        bool thirdEnabled() override { return owner_.thirdOn; }
        const std::uint8_t* thirdImage() override { return owner_.thirdPixels.data(); }
        std::int32_t thirdWidth() override { return owner_.thirdWidthValue; }
        std::int32_t thirdHeight() override { return owner_.thirdHeightValue; }
        bool rectifiedThirdIntrinsics(KXCalibIntrinsicsRectified* out) override {
            *out = owner_.thirdIntrinsics;
            return owner_.call("rectifiedThirdIntrinsics");
        }
        bool zToThirdExtrinsics(KXCalibExtrinsics* out) override {
            *out = owner_.zToThird;
            return owner_.call("zToThirdExtrinsics");
        }

    private:
        FakeKxDevice& owner_;
    };

    class Hardware final : public KXHardwareControl {
    public:
        explicit Hardware(FakeKxDevice& owner) : owner_(owner) {}
        bool setAutoExposure(std::int32_t imagers, bool on) override {
            return owner_.call("setAutoExposure", imagers, on);
        }
        bool setGain(float value, std::int32_t imagers) override { return owner_.call("setGain", value, imagers); }
        bool setExposure(float value, std::int32_t imagers) override {
            return owner_.call("setExposure", value, imagers);
        }
        bool setHardwareOption(bool on, std::int32_t value) override {
            return owner_.call("setHardwareOption", on, value);
        }

    private:
        FakeKxDevice& owner_;
    };

    class Emitter final : public KXEmitterControl {
    public:
        explicit Emitter(FakeKxDevice& owner) : owner_(owner) {}
        bool setEmitter(bool on) override { return owner_.call("setEmitter", on); }

    private:
        FakeKxDevice& owner_;
    };

    class Platform final : public KXPlatformCamera {
    public:
        explicit Platform(FakeKxDevice& owner) : owner_(owner) {}
        bool setPlatformMode(std::int32_t mode, std::int32_t w, std::int32_t h) override {
            return owner_.call("setPlatformMode", mode, w, h);
        }
        bool nonRectifiedIntrinsics(KXCalibIntrinsicsNonRectified* out) override {
            *out = raw;
            return owner_.call("nonRectifiedIntrinsics");
        }
        bool rectifiedIntrinsics(KXCalibIntrinsicsRectified* out) override {
            *out = rectified;
            return owner_.call("rectifiedIntrinsics");
        }
        const double* rectificationRotation() override {
            return owner_.call("rectificationRotation") ? rotation : nullptr;
        }
        bool zToPlatformExtrinsics(KXCalibExtrinsics* out) override {
            *out = zToPlatform;
            return owner_.call("zToPlatformExtrinsics");
        }

        KXCalibIntrinsicsNonRectified raw{1000, 1000, 640, 360, 1280, 720, 0.1F, 0.2F, 0.3F, 0.4F, 0.5F};
        KXCalibIntrinsicsRectified rectified{1160, 1145, 650, 355, 1280, 720};
        KXCalibExtrinsics zToPlatform{{1, 0, 0, 0, 1, 0, 0, 0, 1}, {-30, 12, 4}};
        double rotation[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};

    private:
        FakeKxDevice& owner_;
    };

    bool openDevice(std::int32_t index) override { return call("openDevice", index); }
    bool initDevice() override { return call("initDevice"); }
    const char* firmwareVersionText() override { return call("firmwareVersionText") ? "1.27.11" : nullptr; }
    const char* softwareVersionText() override { return call("softwareVersionText") ? "2.2.0" : nullptr; }
    bool serialNumber(std::uint32_t* out) override {
        *out = 550101;
        return call("serialNumber");
    }
    KXHardwareControl* hardwareControl() override { return call("hardwareControl") ? &hardware : nullptr; }
    KXThirdCamera* thirdCamera() override { return call("thirdCamera") ? &third : nullptr; }
    KXEmitterControl* emitterControl() override { return call("emitterControl") ? &emitter : nullptr; }
    bool setDepthStreamMode(bool rectified, std::int32_t w, std::int32_t h, std::int32_t fps,
                            std::int32_t format) override {
        return call("setDepthStreamMode", rectified, w, h, fps, format);
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
    std::int32_t depthWidth() override { return 628; }
    std::int32_t depthHeight() override { return 468; }
    std::int32_t lrWidth() override { return lrWidthValue; }
    std::int32_t lrHeight() override { return 468; }
    std::int32_t lastStatus() override { return status; }
    bool calibrationValid() override { return calibrated; }
    bool rectifiedLRIntrinsics(KXCalibIntrinsicsRectified* out) override {
        *out = leftRight;
        return call("rectifiedLRIntrinsics");
    }
    bool zIntrinsics(KXCalibIntrinsicsRectified* out) override {
        *out = z;
        return call("zIntrinsics");
    }
    bool rectParameters(KXCalibRectParameters* out) override {
        *out = rectBlock;
        return call("rectParameters");
    }
    KXPlatformCamera* platformCamera() override { return call("platformCamera") ? &platform : nullptr; }
    KXPrivate* privateInterface() override { return nullptr; }
    bool resumeDevice() override { return call("resumeDevice"); }

    Third third;
    Hardware hardware;
    Emitter emitter;
    Platform platform;
    std::vector<std::string> calls;
    std::int32_t status = 0;
    bool calibrated = true;
    bool depthOn = true;
    bool thirdOn = true;
    bool destroyed = false;
    std::int32_t lrWidthValue = 628;
    std::int32_t thirdWidthValue = 640;
    std::int32_t thirdHeightValue = 480;
    std::vector<std::uint16_t> left, right, depth;
    std::vector<std::uint8_t> thirdPixels;
    KXCalibIntrinsicsRectified leftRight{580, 576, 314, 234, 628, 468};
    KXCalibIntrinsicsRectified z{581, 577, 315, 235, 628, 468};
    KXCalibIntrinsicsRectified thirdIntrinsics{1160, 960, 320, 240, 640, 480};
    KXCalibExtrinsics zToThird{{1, 0, 0, 0, 1, 0, 0, 0, 1}, {58, -2, 1}};
    KXCalibRectParameters rectBlock{};
    std::function<void()> onGrab;

private:
    std::map<std::string, std::pair<int, std::int32_t>> failures_;
    std::map<std::string, int> counts_;
};

/// The library around the fake device `current`. Its rectification copies the picture; `rectifyCalls` counts it.
struct FakeLibrary {
    FakeLibrary() {
        rectifyCalls = 0;
        library->create = [](std::int32_t) -> KXDevice* { return current; };
        library->destroy = [](KXDevice*) { current->destroyed = true; };
        library->statusString = [](std::int32_t) -> const char* { return "STATUS %2 TEXT"; };
        library->rectificationTable = [](const KXCalibIntrinsicsNonRectified*, const double*,
                                         const KXCalibIntrinsicsRectified* rectified, std::uint32_t* table) {
            for (std::int32_t i = 0; i < rectified->w * rectified->h; ++i)
                table[i] = static_cast<std::uint32_t>(i);
        };
        library->rectifyBGRA8ToBGRA8 = [](const std::uint32_t* table, const std::uint8_t* source, std::int32_t,
                                          std::int32_t w, std::int32_t h, std::uint8_t* destination) {
            ++rectifyCalls;
            for (std::size_t i = 0; i < static_cast<std::size_t>(w) * static_cast<std::size_t>(h); ++i) {
                std::memcpy(destination + 4 * i, source + std::size_t{4} * table[i], 4);
            }
        };
    }

    std::shared_ptr<KXLibrary> library = std::make_shared<KXLibrary>();
    inline static FakeKxDevice* current = nullptr;
    inline static int rectifyCalls = 0;
};

}  // namespace fieldcal::testing
