#pragma once

#include "camera/ColourCamera.h"
#include "camera/Rotation.h"
#include "devices/Sensor.h"

#include <optional>

namespace fieldcal {

/// A rotation estimated before a save, compared with what the module's images show after it.
struct EstimateCheck {
    double offsetDeg = 0;     ///< between the estimate and the one from a fresh pair of images
    double toleranceDeg = 0;  ///< the offset up to which the images agree with the estimate

    bool contradicts() const { return offsetDeg > toleranceDeg; }
};

/// Estimates the rotation of a colour camera from the next frame sets, as a calibration does from its first pair: in
/// light, and from a pair held still, searching about the estimate and about the previous rotation. The tolerance is
/// half the angle between the estimate and the rotation that the module had before, but at least what a hand-held pair
/// and unknown distances explain. Returns none when no such pair comes within two seconds of frame sets, or when its
/// matches do not agree on a rotation; failures of the module are not reported. Switches the emitter off. On the
/// sensor's thread.
std::optional<EstimateCheck> checkEstimate(Sensor& sensor, ColourCamera camera, const Rotation& estimate,
                                           double rememberedBaselineM);

}  // namespace fieldcal
