#pragma once

#include "engine/CameraPair.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// How far a predicted colour point may lie from the matched one to count as an inlier, in pixels.
constexpr double kInlierPx = 3.0;
/// The same bound in the residual's own unit.
constexpr double kInlierResidual = static_cast<double>(0.02F);

/// How the distance between a predicted and a matched colour point becomes residual terms. The engine uses `Cauchy`;
/// the others stand here to be compared (docs/estimation.md, benchmarks/).
enum class ResidualForm {
    Pixels,        ///< the two differences in pixels
    Normalised,    ///< divided by the colour focal length
    InlierScaled,  ///< scaled so that `kInlierPx` gives the bound
    Cauchy,        ///< in the direction of the difference, growing like √log beyond `kCauchyPx`
    Bounded,       ///< in the direction of the difference, bounded (Geman and McClure)
};

/// The difference of two matched corners at which the Cauchy form turns from linear to logarithmic, in pixels:
/// about four deviations of a right match. Between 0.4 and 2.5 the accuracy is the same; the fits are faster with
/// larger ones.
constexpr double kCauchyPx = 2.0;

/// Differences between colour points and infrared points mapped by K_colour · R · K_infrared⁻¹, as residual terms of a
/// rotation given by three angles in radians. Two terms a pair. In the form of Eigen's non-linear optimisation module.
class RotationCost {
public:
    using Scalar = double;
    enum { InputsAtCompileTime = Eigen::Dynamic, ValuesAtCompileTime = Eigen::Dynamic };
    using InputType = Eigen::VectorXd;
    using ValueType = Eigen::VectorXd;
    using JacobianType = Eigen::MatrixXd;

    /// Colour points in pixels of the colour model. `cauchyPx`: where the Cauchy form bends.
    RotationCost(const std::vector<cv::Point2f>& infraredPoints, const std::vector<cv::Point2f>& colourPoints,
                 const CameraPair& cameras, ResidualForm form = ResidualForm::Cauchy, double cauchyPx = kCauchyPx);
    /// Some pairs of another cost, by index; in its form or in another one.
    RotationCost(const RotationCost& all, const std::vector<int>& indices);
    RotationCost(const RotationCost& all, const std::vector<int>& indices, ResidualForm form);

    int pairs() const { return static_cast<int>(rays_.size()); }
    int inputs() const { return 3; }
    int values() const { return 2 * pairs(); }

    int operator()(const InputType& anglesRad, ValueType& terms) const;
    /// Forward differences. The step does not shrink with the angle: relative to an angle near 0° it would drown in
    /// rounding.
    int df(const InputType& anglesRad, JacobianType& jacobian) const;

    /// Residual of each pair: the length of its two terms.
    void residuals(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const;
    /// Sum of the squared residuals of all pairs.
    double squaredError(const Eigen::Vector3d& anglesRad) const;
    /// Unit vectors of each pair's points, each in its own camera.
    void directions(std::vector<Eigen::Vector3d>* infrared, std::vector<Eigen::Vector3d>* colour) const;
    double focalLengthPx() const { return fx_; }
    /// Distance in colour pixels of each pair from the prediction.
    void distancesPx(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const;

private:
    template <typename Visit>
    void visitDifferences(const Eigen::Vector3d& anglesRad, Visit&& visit) const;
    double termFactor(double squaredPx) const;
    void setForm(ResidualForm form);

    std::vector<Eigen::Vector2d> rays_;     ///< infrared points on the plane Z = 1
    std::vector<Eigen::Vector2d> colours_;  ///< matched colour points
    double fx_, fy_, cx_, cy_;
    ResidualForm form_;
    double squaredCauchyPx_;
    double unit_;  ///< scales the form so that a difference of `kInlierPx` has the residual `kInlierResidual`
    // The terms of the last evaluation: the solver asks for the Jacobian where it has just evaluated.
    mutable Eigen::Vector3d lastAnglesRad_;
    mutable ValueType lastTerms_;
};

}  // namespace vq
