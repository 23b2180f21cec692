#pragma once

#include "simulator/kxapi/ModuleState.h"

#include <optional>

namespace kxsim {

/// The colour camera inside the module. Whatever size is requested, images have the recording's own size, as
/// `thirdWidth` reports.
class ThirdInterface final : public KXThirdCamera {
public:
    explicit ThirdInterface(ModuleState* state) : state_(*state) {}

    bool setThirdStreamMode(bool rectified, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            std::int32_t pixelFormat) override;
    bool setThirdEnabled(bool on) override;
    bool thirdEnabled() override;
    const std::uint8_t* thirdImage() override;
    std::int32_t thirdWidth() override;
    std::int32_t thirdHeight() override;
    bool rectifiedThirdIntrinsics(KXCalibIntrinsicsRectified* out) override;
    bool zToThirdExtrinsics(KXCalibExtrinsics* out) override;

private:
    ModuleState& state_;
};

/// The module's calibration of the tablet's rear camera. Raw intrinsics are available in mode 0, rectified ones in mode
/// 1.
class PlatformInterface final : public KXPlatformCamera {
public:
    explicit PlatformInterface(ModuleState* state) : state_(*state) {}

    bool setPlatformMode(std::int32_t rectified, std::int32_t width, std::int32_t height) override;
    bool nonRectifiedIntrinsics(KXCalibIntrinsicsNonRectified* out) override;
    bool rectifiedIntrinsics(KXCalibIntrinsicsRectified* out) override;
    const double* rectificationRotation() override;
    bool zToPlatformExtrinsics(KXCalibExtrinsics* out) override;

private:
    bool enterInMode(const char* operation, std::int32_t mode);

    ModuleState& state_;
    std::optional<std::int32_t> mode_;
};

}  // namespace kxsim
