#include "simulator/world/Emitter.h"

#include "simulator/synthesis/Noise.h"
#include "simulator/world/Depth.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::world {

namespace {

constexpr float projectorX = 0.028F;            // metres to the right of the left imager
constexpr float pitch = 0.014F, dot = 0.0017F;  // radians about: between dots, and a dot's spread
constexpr float power = 0.12F;                  // of a dot on white at 1 m, sunlit white being 1
constexpr float farthest = 8;

/// Light of the pattern in a direction from the projector (x/z and y/z), 1 in the middle of a dot.
float pattern(float u, float v) {
    const int column = static_cast<int>(std::floor(u / pitch)), row = static_cast<int>(std::floor(v / pitch));
    float light = 0;
    for (int r = row - 1; r <= row + 1; ++r)
        for (int c = column - 1; c <= column + 1; ++c) {
            if (synthesis::Noise::cell(c, r, 131) > 0.7F) continue;
            const float du = u - (static_cast<float>(c) + synthesis::Noise::cell(c, r, 132)) * pitch;
            const float dv = v - (static_cast<float>(r) + synthesis::Noise::cell(c, r, 133)) * pitch;
            light += std::exp(-0.5F * (du * du + dv * dv) / (dot * dot));
        }
    return light;
}

/// An imager with intrinsics `k`, the projector so far to its right.
void addDots(double light, const session::Intrinsics& k, float projector, const cv::Mat_<float>& depth,
             cv::Mat_<float>& picture) {
    if (picture.size() != depth.size()) return;
    cv::Mat_<float> around;  // how bright a surface is tells roughly how much it throws back
    cv::blur(picture, around, {15, 15});
    forEachRow(depth.rows, [&](int y) {
        for (int x = 0; x < depth.cols; ++x) {
            const float z = depth(y, x);
            if (z <= 0 || z > farthest) continue;
            const float u = static_cast<float>((x - k.cx) / k.fx) - projector / z;
            const float reflectance = std::min(0.9F, 0.2F + 0.7F * around(y, x));
            picture(y, x) += pattern(u, static_cast<float>((y - k.cy) / k.fy)) * reflectance * power /
                             (z * z * static_cast<float>(light));
        }
    });
}

/// The depth of what the right imager sees, put together from what the left one sees; 0 where that is hidden from the
/// left one. Only as far as dots are seen.
cv::Mat_<float> rightDepth(const View& view, double apart) {
    const auto f = static_cast<float>(view.depthCamera.fx * apart);
    const auto offset = static_cast<float>(view.rightImager.columnOffsetPx);
    cv::Mat_<float> depth(view.depth.size(), 0.0F);
    forEachRow(depth.rows, [&](int y) {
        for (int x = 0; x < depth.cols; ++x) {
            const float z = view.depth(y, x);
            const int column = z > 0 && z <= farthest ? cvRound(static_cast<float>(x) - f / z + offset) : -1;
            if (column < 0 || column >= depth.cols) continue;
            if (depth(y, column) == 0 || z < depth(y, column)) depth(y, column) = z;
        }
        // A slanted surface is wider in the right picture: its pixels leave gaps.
        for (int x = 1; x + 1 < depth.cols; ++x)
            if (depth(y, x) == 0 && depth(y, x + 1) > 0) depth(y, x) = depth(y, x - 1);
    });
    return depth;
}

}  // namespace

void addEmitterDots(double light, View* view) {
    addDots(light, view->depthCamera, projectorX, view->depth, view->infrared);
    const double apart = view->rightImager.isApart ? stereoBaseline : 0;
    addDots(light, synthesis::rightIntrinsics(view->depthCamera, view->rightImager),
            projectorX - static_cast<float>(apart), rightDepth(*view, apart), view->right);
}

}  // namespace fieldcal::world
