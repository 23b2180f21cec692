#pragma once

#include <cmath>

namespace vq {

/// Largest distance in pixels between a predicted and a matched colour point of an inlier.
constexpr double kInlierPx = 3.0;
/// The same bound in the unit of the residual.
constexpr double kInlierResidual = static_cast<double>(0.02F);

/// Difference in pixels at which the Cauchy loss changes from linear to logarithmic, about four standard deviations of
/// a correct match. Between 0.4 and 2.5 the accuracy is the same; larger values make the fits faster.
constexpr double kCauchyPx = 2.0;

/// Turns the distance between a predicted and a matched colour point into a residual, along the difference, scaled so
/// that `kInlierPx` becomes `kInlierResidual`.
class ResidualLoss {
public:
    /// The residual per pixel, up to a constant, of a difference of the given squared length.
    using Shape = double (*)(double squaredPx, double squaredScalePx);

    ResidualLoss(Shape shape, double scalePx)
        : shape_(shape),
          squaredScalePx_(scalePx * scalePx),
          unit_(kInlierResidual / (kInlierPx * shape(kInlierPx * kInlierPx, squaredScalePx_))) {}

    /// Grows like √log beyond the scale, so that wrong matches have little influence (Cauchy; Hampel et al., Robust
    /// Statistics, 1986).
    static ResidualLoss cauchy(double scalePx = kCauchyPx) { return {cauchyShape, scalePx}; }

    double perPixel(double squaredPx) const { return unit_ * shape_(squaredPx, squaredScalePx_); }

private:
    /// √log(1 + r) / √r tends to 1.
    static double cauchyShape(double squaredPx, double squaredScalePx) {
        const double ratio = squaredPx / squaredScalePx;
        return ratio > 1e-6 ? std::sqrt(std::log(1.0 + ratio) / ratio) : 1.0;
    }

    Shape shape_;
    double squaredScalePx_;
    double unit_;
};

}  // namespace vq
