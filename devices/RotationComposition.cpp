#include "devices/RotationComposition.h"

#include <opencv2/core/matx.hpp>

#include <algorithm>
#include <cmath>

namespace fieldcal {
namespace {

cv::Matx33d widened(const float* matrix) {
    cv::Matx33d wide;
    std::copy(matrix, matrix + 9, wide.val);
    return wide;
}

}  // namespace

bool isRotation(const float* matrix, double tolerance) {
    const cv::Matx33d m = widened(matrix);
    if (!std::all_of(m.val, m.val + 9, [](double entry) { return std::isfinite(entry); })) return false;
    const cv::Matx33d residual = m.t() * m - cv::Matx33d::eye();
    const bool orthonormal =
        std::all_of(residual.val, residual.val + 9, [=](double entry) { return std::abs(entry) <= tolerance; });
    return orthonormal && std::abs(cv::determinant(m) - 1.0) <= tolerance;
}

std::array<double, 9> rawRotation(const Rotation& rectified, const float* rectifyColour, const float* rectifyInfrared) {
    const cv::Matx33d raw = widened(rectifyColour).t() * widened(rectified.data()) * widened(rectifyInfrared);
    std::array<double, 9> out{};
    std::copy(raw.val, raw.val + 9, out.begin());
    return out;
}

}  // namespace fieldcal
