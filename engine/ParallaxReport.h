#pragma once

#include <optional>

namespace vq {

/// Where an attempt's stereo baseline comes from.
enum class BaselineSource {
    None,        ///< unknown: disparities tell no distances
    Depth,       ///< the module's own depth image
    Fit,         ///< the fit of the rotation, since the distances vary
    Remembered,  ///< an earlier calibration of the same module
};

/// What an attempt knows about distances.
struct ParallaxReport {
    int withDistance = 0;  ///< verified matches whose distance is known
    std::optional<double> baselineM;
    BaselineSource baselineFrom = BaselineSource::None;
    std::optional<double> medianDistanceM;  ///< of those matches; none when more than half are too far to tell
};

}  // namespace vq
