#pragma once

#include "engine/MeasuredMatch.h"

#include <optional>
#include <vector>

namespace vq {

/// Converts disparities between the two infrared images to inverse depths: disparity = pixelMetres / depth + offset.
struct StereoScale {
    double pixelMetres = 0;  ///< focal length in pixels times stereo baseline in metres
    double offsetPx = 0;     ///< constant disparity of imagers that are slightly misaligned against the depth image
    /// Standard deviation of `pixelMetres` relative to its value.
    double relativeDeviation = 0;

    double inverseDepth(double disparityPx) const { return (disparityPx - offsetPx) / pixelMetres; }
};

/// Returns the scale under which the disparities agree with the module's own depth image, by robust linear regression
/// of disparity over inverse depth. The offset is zero unless the depths vary enough to determine it. Returns none when
/// fewer than 40 places have both values, or when the scale would be uncertain by more than 2 %.
std::optional<StereoScale> scaleFromDepth(const std::vector<MeasuredPlace>& places);

}  // namespace vq
