#pragma once

#include "simulator/kxapi/ModuleState.h"

namespace kxsim {

/// Writing the calibration. Like the module's own memory it takes any block: one that makes no sense keeps the module
/// from resuming and from being opened (status 4).
class PrivateInterface final : public KXPrivate {
public:
    explicit PrivateInterface(ModuleState* state) : state_(*state) {}

    bool writeRectParameters(const KXCalibRectParameters* parameters, bool permanent) override;
    bool commitCalibration() override;

private:
    ModuleState& state_;
};

}  // namespace kxsim
