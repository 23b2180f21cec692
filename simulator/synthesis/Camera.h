#pragma once

#include "session/RecordedSession.h"

#include <opencv2/core.hpp>

namespace fieldcal::synthesis {

/// The rays of a camera: x/z and y/z in the frame in which its rotation is given, for samplesPerPixel² samples of every
/// pixel, row by row.
struct RayGrid {
    cv::Mat_<cv::Vec2f> rays;
    int samplesPerPixel = 1;
};

/// Rays of the infrared camera, whose principal point in its own pixels is (cx, cy).
RayGrid infraredRays(const session::Intrinsics& infrared, int samplesPerPixel);

/// Rays of a colour camera without distortion. Its (cx, cy) become the principal point once the image has been
/// scaled by s = f_infrared / f_colour with aligned pixel areas; in its own pixels that is cx − 0.5 + 0.5/s.
RayGrid colourRays(const session::Intrinsics& colour, const session::Intrinsics& infrared, int samplesPerPixel);

/// Returns the principal point of such a camera in its own pixels.
cv::Point2d ownPrincipalPoint(const session::Intrinsics& colour, const session::Intrinsics& infrared);

/// Rays of the unrectified rear camera, in its *rectified* frame. A raw pixel is first mapped to the rectified pixel
/// that the rectification table reads there, and its ray is that of `colourRays`; so rectifying the raw image yields
/// exactly the image that `colourRays` describes.
RayGrid platformRays(const session::PlatformCamera& platform, const session::Intrinsics& infrared, int samplesPerPixel);

/// Returns the raw pixel of a rectified pixel: undo the rectifying rotation, distort, project. Both are in pixels with
/// the first centre at 0.
cv::Point2d rawFromRectified(const session::PlatformCamera& platform, cv::Point2d rectified);
/// The inverse of `rawFromRectified`.
cv::Point2d rectifiedFromRaw(const session::PlatformCamera& platform, cv::Point2d raw);

}  // namespace fieldcal::synthesis
