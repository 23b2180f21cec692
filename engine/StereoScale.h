#pragma once

#include "engine/MeasuredMatch.h"

#include <optional>
#include <vector>

namespace vq {

/// How disparities between the two infrared images turn into inverse depths: disparity = pixelMetres / depth + offset.
struct StereoScale {
    double pixelMetres = 0;  ///< focal length in pixels times stereo baseline in metres
    double offsetPx = 0;     ///< constant disparity of imagers that are a little misaligned against the depth image
    /// One deviation of `pixelMetres` as a share of it.
    double relativeDeviation = 0;

    double inverseDepth(double disparityPx) const { return (disparityPx - offsetPx) / pixelMetres; }
};

/// The scale under which the disparities agree with the module's own depth image: robust linear regression of
/// disparity over inverse depth. The offset stays zero unless the depths vary enough to show it. None when fewer than
/// 40 places have both or when they leave the scale uncertain by more than 2 %.
std::optional<StereoScale> scaleFromDepth(const std::vector<MeasuredPlace>& places);

}  // namespace vq
