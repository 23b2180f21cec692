#pragma once

#include "simulator/kxapi/ModuleState.h"

namespace kxsim {

/// The camera inside the module. Whatever size is asked for, the recording's own is served: `thirdWidth` tells.
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

}  // namespace kxsim
