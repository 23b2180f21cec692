#pragma once

#include "devices/FrameAcquisition.h"
#include "devices/ModuleLink.h"
#include "devices/SensorSettings.h"

#include <cstdint>
#include <memory>

namespace fieldcal {

/// What the open sequence finds; valid as long as the device.
struct OpenedModule {
    KXThirdCamera* third = nullptr;
    std::uint32_t serial = 0;
};

/// Opens the device of the link, configures it and starts its streams. False: it has been logged, and reported by the
/// link except for a module without a colour camera. `out` gets what was found so far.
bool openModule(ModuleLink& link, const SensorSettings& settings, const std::shared_ptr<FrameAcquisition>& frames,
                OpenedModule* out);

/// Switches the infrared emitter. False: it failed, or the device has none and it was to be on.
bool switchEmitter(ModuleLink& link, bool on);

}  // namespace fieldcal
