#include "simulator/world/Emitter.h"

#include "simulator/synthesis/Noise.h"
#include "simulator/world/Depth.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::world {

namespace {

constexpr float kProjectorXMetres = 0.028F;  // metres to the right of the left imager
constexpr float kDotPitchRad = 0.014F,
                kDotSizeRad = 0.0017F;  // radians: approximate spacing of the dots, and the size of a dot
constexpr float kDotPower = 0.12F;      // of a dot on white at 1 m, relative to sunlit white
constexpr float kMaxDistance = 8;

/// Light of the pattern in a direction from the projector (x/z and y/z), 1 in the centre of a dot.
float pattern(float u, float v) {
    const int column = static_cast<int>(std::floor(u / kDotPitchRad)),
              row = static_cast<int>(std::floor(v / kDotPitchRad));
    float light = 0;
    for (int r = row - 1; r <= row + 1; ++r)
        for (int c = column - 1; c <= column + 1; ++c) {
            if (synthesis::Noise::cell(c, r, 131) > 0.7F) continue;
            const float du = u - (static_cast<float>(c) + synthesis::Noise::cell(c, r, 132)) * kDotPitchRad;
            const float dv = v - (static_cast<float>(r) + synthesis::Noise::cell(c, r, 133)) * kDotPitchRad;
            light += std::exp(-0.5F * (du * du + dv * dv) / (kDotSizeRad * kDotSizeRad));
        }
    return light;
}

/// Adds the dots to the image of an imager with intrinsics `k` and the projector at the given distance to its right.
void addDots(double light, const session::Intrinsics& k, float projector, const cv::Mat_<float>& depth,
             cv::Mat_<float>& image) {
    if (image.size() != depth.size()) return;
    cv::Mat_<float> around;  // local brightness of the surface, an estimate of its reflectance
    cv::blur(image, around, {15, 15});
    forEachRow(depth.rows, [&](int y) {
        for (int x = 0; x < depth.cols; ++x) {
            const float z = depth(y, x);
            if (z <= 0 || z > kMaxDistance) continue;
            const float u = static_cast<float>((x - k.cx) / k.fx) - projector / z;
            const float reflectance = std::min(0.9F, 0.2F + 0.7F * around(y, x));
            image(y, x) += pattern(u, static_cast<float>((y - k.cy) / k.fy)) * reflectance * kDotPower /
                           (z * z * static_cast<float>(light));
        }
    });
}

/// Depth seen by the right imager, computed from the left one's depth; 0 where the left one does not see the surface.
/// Limited to the range of the dots.
cv::Mat_<float> rightDepth(const View& view, double apart) {
    const auto f = static_cast<float>(view.depthCamera.fx * apart);
    const auto offset = static_cast<float>(view.rightImager.columnOffsetPx);
    cv::Mat_<float> depth(view.depth.size(), 0.0F);
    forEachRow(depth.rows, [&](int y) {
        for (int x = 0; x < depth.cols; ++x) {
            const float z = view.depth(y, x);
            const int column = z > 0 && z <= kMaxDistance ? cvRound(static_cast<float>(x) - f / z + offset) : -1;
            if (column < 0 || column >= depth.cols) continue;
            if (depth(y, column) == 0 || z < depth(y, column)) depth(y, column) = z;
        }
        // A slanted surface is wider in the right image, which leaves gaps between its pixels.
        for (int x = 1; x + 1 < depth.cols; ++x)
            if (depth(y, x) == 0 && depth(y, x + 1) > 0) depth(y, x) = depth(y, x - 1);
    });
    return depth;
}

}  // namespace

void addEmitterDots(double light, View* view) {
    addDots(light, view->depthCamera, kProjectorXMetres, view->depth, view->infrared);
    const double apart = view->rightImager.isApart ? kStereoBaselineM : 0;
    addDots(light, synthesis::rightIntrinsics(view->depthCamera, view->rightImager),
            kProjectorXMetres - static_cast<float>(apart), rightDepth(*view, apart), view->right);
}

}  // namespace fieldcal::world
