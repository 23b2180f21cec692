#pragma once

#include "devices/FrameAcquisition.h"
#include "devices/ModuleLink.h"
#include "devices/SensorSettings.h"

#include <cstdint>
#include <memory>

namespace fieldcal {

/// The result of the open sequence, valid as long as the device.
struct OpenedModule {
    KXThirdCamera* third = nullptr;
    std::uint32_t serial = 0;
};

/// Opens the device of the link, configures it and starts its streams. Returns false after a failure, which has been
/// logged and, except for a module without a colour camera, reported by the link. `out` receives what was found until
/// then.
bool openModule(ModuleLink& link, const SensorSettings& settings, const std::shared_ptr<FrameAcquisition>& frames,
                OpenedModule* out);

/// Switches the infrared emitter. Returns false when this failed, or when it is to be switched on and the device has
/// none.
bool switchEmitter(ModuleLink& link, bool on, bool quietly = false);

}  // namespace fieldcal
