#pragma once

#include "devices/PlatformCameraBackend.h"
#include "kxapi/Library.h"

#include <memory>

namespace fieldcal {

/// The rear camera provided by a simulated module (see `RearCameraSeam.h`). A library without one behaves like a tablet
/// without a rear camera: no device is found.
class RearCameraBackend : public PlatformCameraBackend {
public:
    /// Returns whether the library decides about the rear camera. A simulated library does, also for a tablet without
    /// one.
    static bool isIn(const KXLibrary& library);

    explicit RearCameraBackend(std::shared_ptr<const KXLibrary> library);

    bool selectDevice(const std::string& friendlyName) override;
    bool openCamera() override;
    bool setAutoFocus(bool on) override;
    bool setFocus(std::int32_t value) override;
    bool setupStream(Stream stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                     const std::string& subtype) override;
    void setSink(RearCameraSink* sink) override;
    std::int32_t firstImageMs() const override { return 0; }

private:
    std::shared_ptr<const KXLibrary> library_;  ///< keeps the code of the source loaded
    RearCameraSource* source_ = nullptr;        ///< set once the device is selected
};

}  // namespace fieldcal
