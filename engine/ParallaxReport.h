#pragma once

#include <optional>

namespace vq {

/// The origin of an attempt's stereo baseline.
enum class BaselineSource {
    None,        ///< unknown: disparities do not give distances
    Depth,       ///< the module's own depth image
    Fit,         ///< the fit of the rotation, to a scene with varied distances
    Remembered,  ///< an earlier calibration of the same module
};

/// What an attempt has measured about distances.
struct ParallaxReport {
    int withDistance = 0;  ///< verified matches of known distance
    std::optional<double> baselineM;
    BaselineSource baselineFrom = BaselineSource::None;
    std::optional<double> medianDistanceM;  ///< of those matches; none when more than half are too far to measure
};

}  // namespace vq
