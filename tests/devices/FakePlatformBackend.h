#pragma once

#include "devices/PlatformCameraBackend.h"

#include <cstdio>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// The state of the rear camera in a test. It outlives the backend, which the control owns.
struct FakeRearCamera {
    std::string name = "HP Truevision 8MP Rear";
    std::string failing;  ///< the call, as recorded, that fails
    std::vector<std::string> calls;
    RearCameraSink* sink = nullptr;
    std::int32_t firstImageMs = 0;
    std::function<void()> onAwaited = [] {};  ///< called while the first image is awaited

    bool call(const std::string& record) {
        calls.push_back(record);
        return record != failing;
    }

    /// One 1280 x 720 image of a single colour.
    void deliver(std::uint8_t luma, std::uint8_t u, std::uint8_t v, std::int32_t width = 1280) const {
        std::vector<std::uint8_t> nv12(static_cast<std::size_t>(width) * 720, luma);
        for (std::int32_t i = 0; i < width * 360; ++i)
            nv12.push_back(i % 2 == 0 ? u : v);
        sink->onImage(nv12.data(), width, 720, 0.0);
    }
};

class FakePlatformBackend : public PlatformCameraBackend {
public:
    explicit FakePlatformBackend(FakeRearCamera& camera) : camera_(camera) {}
    bool selectDevice(const std::string& friendlyName) override { return friendlyName == camera_.name; }
    bool openCamera() override { return camera_.call("openCamera"); }
    bool setAutoFocus(bool on) override { return camera_.call(on ? "autoFocus on" : "autoFocus off"); }
    bool setFocus(std::int32_t value) override { return camera_.call("focus " + std::to_string(value)); }
    bool setupStream(Stream stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                     const std::string& subtype) override {
        char record[80];
        std::snprintf(record, sizeof record, "stream %d: %dx%d@%d %s", static_cast<int>(stream), width, height,
                      framesPerSecond, subtype.c_str());
        return camera_.call(record);
    }
    void setSink(RearCameraSink* sink) override { camera_.sink = sink; }
    std::int32_t firstImageMs() const override {
        camera_.onAwaited();
        return camera_.firstImageMs;
    }

private:
    FakeRearCamera& camera_;
};

}  // namespace fieldcal::testing
