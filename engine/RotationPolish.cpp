#include "engine/RotationPolish.h"

#include "engine/FitTerm.h"

#include <Eigen/Geometry>
#include <Eigen/LU>

#include <cmath>
#include <limits>

namespace vq {
namespace {

constexpr int kMaxIterations = 50;
constexpr double kConvergedRad = 1e-7;
constexpr std::size_t kMinimumMatches = 6;
/// Standard deviation of a measured disparity, from objects at infinity in rendered worlds.
constexpr double kDisparityDeviationPx = 0.08;
/// Relative standard deviation of its square, which is larger on façades of equal windows.
constexpr double kNoiseUncertainty = 2.0;

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

/// Normal equations of one step. The unknowns are a small rotation of the colour camera (radians) and the inverse
/// scale.
class Step {
public:
    Step(const Projection& projection, const FitOptions& options) : projection_(projection), options_(options) {}

    void accumulate(const std::vector<FitTerm>& terms, const Eigen::Matrix3d& rotation, double inverseScale) {
        normal_.setZero();
        gradient_.setZero();
        weightedSquares_ = weights_ = noise_ = 0;
        for (const FitTerm& term : terms)
            add(term, rotation, inverseScale);
        if (!options_.estimateScale) normal_(3, 3) = 1;
    }

    Vector4 solution() const { return normal_.ldlt().solve(-gradient_); }
    /// Variances of the unknowns, from the spread of the weighted residuals and, for the scale, from the uncertainty of
    /// the noise that was subtracted.
    Vector4 variances(double inverseScale) const {
        const double unknowns = options_.estimateScale ? 4 : 3;
        Vector4 inverse = normal_.inverse().diagonal();
        // More noise was subtracted than there was information.
        if (!(inverse[3] > 0)) inverse[3] = std::numeric_limits<double>::quiet_NaN();
        Vector4 variances = inverse * weightedSquares_ / std::max(2 * weights_ - unknowns, 1.0);
        const double change = kNoiseUncertainty * noise_ * inverse[3] * inverseScale;
        variances[3] += change * change;
        return variances;
    }

private:
    void add(const FitTerm& term, const Eigen::Matrix3d& rotation, double inverseScale) {
        const double scale = options_.estimateScale ? inverseScale : 1.0;
        const EvaluatedTerm at(term, rotation, projection_, term.inverseDepth * scale, options_.cauchy);
        Eigen::Matrix<double, 2, 4> jacobian = Eigen::Matrix<double, 2, 4>::Zero();
        jacobian.leftCols<3>() = at.pixelsPerTurn();
        const Eigen::Vector2d perScale = at.pixelsPerPoint * projection_.translationM;
        if (options_.estimateScale) jacobian.col(3) = perScale * term.inverseDepth;
        normal_ += at.weight * jacobian.transpose() * term.information * jacobian;
        gradient_ += at.weight * jacobian.transpose() * term.information * at.residualPx;
        if (options_.estimateScale) {
            // Noise in a disparity biases the slope over it towards zero (regression dilution). The expected
            // contribution of that noise is subtracted from the normal equations.
            const double noise =
                at.weight * kDisparityDeviationPx * kDisparityDeviationPx * perScale.dot(term.information * perScale);
            noise_ += noise;
            normal_(3, 3) -= noise;
            gradient_[3] -= noise * inverseScale;
        }
        weightedSquares_ += at.weight * at.squared;
        weights_ += at.weight;
    }

    const Projection& projection_;
    const FitOptions& options_;
    Matrix4 normal_;
    Vector4 gradient_;
    double weightedSquares_ = 0, weights_ = 0;
    double noise_ = 0;  ///< subtracted from the information about the scale
};

}  // namespace

Eigen::Vector2d Projection::colourPoint(const Eigen::Matrix3d& rotation, const cv::Point2f& infrared,
                                        double inverseDepth) const {
    const Eigen::Vector3d p = rotation * rayOf(cameras.infrared, infrared) + translationM * inverseDepth;
    return {cameras.colour.fx * p.x() / p.z() + cameras.colour.cx,
            cameras.colour.fy * p.y() / p.z() + cameras.colour.cy};
}

Eigen::Vector2d Projection::residualPx(const Eigen::Matrix3d& rotation, const MeasuredMatch& match,
                                       const StereoScale* scale) const {
    const double inverseDepth = inverseDepthOf(match.place, scale);
    return colourPoint(rotation, match.place.infrared, std::isnan(inverseDepth) ? 0 : inverseDepth) -
           Eigen::Vector2d(match.colour.x, match.colour.y);
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

std::vector<FitTerm> fitTerms(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                              const FitOptions& options) {
    std::vector<FitTerm> terms;
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

std::optional<FittedRotation> fitRotation(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                                          const Eigen::Matrix3d& start, const FitOptions& options) {
    if (matches.size() < kMinimumMatches || (options.estimateScale && options.scale == nullptr)) return std::nullopt;
    const std::vector<FitTerm> terms = fitTerms(matches, projection, options);
    Step step(projection, options);
    Eigen::Matrix3d rotation = start;
    double inverseScale = options.estimateScale ? 1 / options.scale->pixelMetres : 0;
    for (int i = 0; i < kMaxIterations; ++i) {
        step.accumulate(terms, rotation, inverseScale);
        const Vector4 solution = step.solution();
        if (!solution.allFinite()) return std::nullopt;
        rotation = rotated(rotation, solution.head<3>());
        if (options.estimateScale) inverseScale += solution[3];
        if (solution.head<3>().norm() > kConvergedRad) continue;
        const Vector4 deviations = step.variances(inverseScale).cwiseSqrt();
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
