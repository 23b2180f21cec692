#include "engine/RotationPolish.h"

#include <Eigen/Geometry>
#include <Eigen/LU>

#include <cmath>

namespace vq {
namespace {

constexpr int kMostIterations = 50;
constexpr double kConvergedRad = 1e-7;
constexpr std::size_t kMinimumMatches = 6;
/// Noise of one measured disparity, from things at infinity in rendered worlds.
constexpr double kDisparityDeviationPx = 0.08;

using Vector4 = Eigen::Matrix<double, 4, 1>;
using Matrix4 = Eigen::Matrix<double, 4, 4>;

Eigen::Vector3d rayOf(const fieldcal::CameraModel& camera, const cv::Point2f& point) {
    return {(static_cast<double>(point.x) - camera.cx) / camera.fx,
            (static_cast<double>(point.y) - camera.cy) / camera.fy, 1.0};
}

Eigen::Matrix3d rotated(const Eigen::Matrix3d& rotation, const Eigen::Vector3d& turnRad) {
    const double angle = turnRad.norm();
    if (angle < 1e-15) return rotation;
    return Eigen::AngleAxisd(angle, turnRad / angle).toRotationMatrix() * rotation;
}

/// A match prepared for many evaluations.
struct Term {
    Eigen::Vector3d ray;
    Eigen::Vector2d colour;
    Eigen::Matrix2d information;
    double inverseDepth;  ///< for a scale that is estimated: the disparity
};

/// Normal equations of one step. Unknowns: a small turn of the colour camera (radians), then the inverse scale.
class Step {
public:
    Step(const Projection& projection, const FitOptions& options) : projection_(projection), options_(options) {}

    void accumulate(const std::vector<Term>& terms, const Eigen::Matrix3d& rotation, double inverseScale) {
        normal_.setZero();
        gradient_.setZero();
        weightedSquares_ = weights_ = 0;
        for (const Term& term : terms)
            add(term, rotation * term.ray, inverseScale);
        if (!options_.estimateScale) normal_(3, 3) = 1;
    }

    Vector4 solution() const { return normal_.ldlt().solve(-gradient_); }
    /// Variances of the unknowns, from the spread of the weighted residuals.
    Vector4 variances() const {
        const double unknowns = options_.estimateScale ? 4 : 3;
        return normal_.inverse().diagonal() * weightedSquares_ / std::max(2 * weights_ - unknowns, 1.0);
    }

private:
    void add(const Term& term, const Eigen::Vector3d& turned, double inverseScale) {
        const fieldcal::CameraModel& camera = projection_.cameras.colour;
        const double scale = options_.estimateScale ? inverseScale : 1.0;
        const Eigen::Vector3d p = turned + projection_.translationM * (term.inverseDepth * scale);
        const double inverse = 1 / p.z();
        const Eigen::Vector2d residual(camera.fx * p.x() * inverse + camera.cx - term.colour.x(),
                                       camera.fy * p.y() * inverse + camera.cy - term.colour.y());
        Eigen::Matrix<double, 2, 3> toPixels;
        toPixels << camera.fx * inverse, 0, -camera.fx * p.x() * inverse * inverse,  //
            0, camera.fy * inverse, -camera.fy * p.y() * inverse * inverse;
        Eigen::Matrix<double, 3, 4> motion;
        motion << 0, turned.z(), -turned.y(), 0,  //
            -turned.z(), 0, turned.x(), 0,        //
            turned.y(), -turned.x(), 0, 0;
        if (options_.estimateScale) motion.col(3) = projection_.translationM * term.inverseDepth;
        const Eigen::Matrix<double, 2, 4> jacobian = toPixels * motion;
        const double squared = residual.dot(term.information * residual);
        const double weight = 1 / (1 + squared / (options_.cauchy * options_.cauchy));
        normal_ += weight * jacobian.transpose() * term.information * jacobian;
        gradient_ += weight * jacobian.transpose() * term.information * residual;
        if (options_.estimateScale) {
            // A disparity that carries noise of its own draws the slope over it towards zero (regression dilution).
            // What that noise is expected to contribute is taken out of the normal equations.
            const Eigen::Vector2d perDisparity = toPixels * projection_.translationM;
            const double noise = weight * kDisparityDeviationPx * kDisparityDeviationPx *
                                 perDisparity.dot(term.information * perDisparity);
            normal_(3, 3) -= noise;
            gradient_[3] -= noise * inverseScale;
        }
        weightedSquares_ += weight * squared;
        weights_ += weight;
    }

    const Projection& projection_;
    const FitOptions& options_;
    Matrix4 normal_;
    Vector4 gradient_;
    double weightedSquares_ = 0, weights_ = 0;
};

std::vector<Term> termsOf(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                          const FitOptions& options) {
    std::vector<Term> terms;
    terms.reserve(matches.size());
    for (const MeasuredMatch& match : matches) {
        double distance = options.estimateScale ? static_cast<double>(match.place.disparityPx)
                                                : inverseDepthOf(match.place, options.scale);
        if (std::isnan(distance)) distance = 0;
        terms.push_back({rayOf(projection.cameras.infrared, match.place.infrared),
                         {match.colour.x, match.colour.y},
                         match.information,
                         distance});
    }
    return terms;
}

}  // namespace

Eigen::Vector2d Projection::colourPoint(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                        double inverseDepth) const {
    const Eigen::Vector3d p = rotation * rayOf(cameras.infrared, infrared) + translationM * inverseDepth;
    return {cameras.colour.fx * p.x() / p.z() + cameras.colour.cx,
            cameras.colour.fy * p.y() / p.z() + cameras.colour.cy};
}

cv::Point2f Projection::withoutParallax(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                        double inverseDepth) const {
    const Eigen::Vector3d p = rayOf(cameras.infrared, infrared) + rotation.transpose() * translationM * inverseDepth;
    return {static_cast<float>(cameras.infrared.fx * p.x() / p.z() + cameras.infrared.cx),
            static_cast<float>(cameras.infrared.fy * p.y() / p.z() + cameras.infrared.cy)};
}

double inverseDepthOf(const MeasuredPlace& place, const StereoScale* scale) {
    if (scale != nullptr && !std::isnan(place.disparityPx)) return scale->inverseDepth(place.disparityPx);
    return place.inverseDepth;
}

std::optional<FittedRotation> fitRotation(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                                          const Eigen::Matrix3d& start, const FitOptions& options) {
    if (matches.size() < kMinimumMatches || (options.estimateScale && options.scale == nullptr)) return std::nullopt;
    const std::vector<Term> terms = termsOf(matches, projection, options);
    Step step(projection, options);
    Eigen::Matrix3d rotation = start;
    double inverseScale = options.estimateScale ? 1 / options.scale->pixelMetres : 0;
    for (int i = 0; i < kMostIterations; ++i) {
        step.accumulate(terms, rotation, inverseScale);
        const Vector4 solution = step.solution();
        if (!solution.allFinite()) return std::nullopt;
        rotation = rotated(rotation, solution.head<3>());
        if (options.estimateScale) inverseScale += solution[3];
        if (solution.head<3>().norm() > kConvergedRad) continue;
        const Vector4 deviations = step.variances().cwiseSqrt();
        FittedRotation fitted{rotation, deviations.head<3>()};
        if (options.estimateScale) {
            fitted.pixelMetres = 1 / inverseScale;
            fitted.pixelMetresDeviation = deviations[3] / (inverseScale * inverseScale);
        }
        return fitted;
    }
    return std::nullopt;
}

}  // namespace vq
