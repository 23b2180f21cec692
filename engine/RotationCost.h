#pragma once

#include "engine/CameraPair.h"

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include <vector>

namespace vq {

/// Largest distance in pixels between a predicted and a matched colour point of an inlier.
constexpr double kInlierPx = 3.0;
/// The same bound in the unit of the residual.
constexpr double kInlierResidual = static_cast<double>(0.02F);

/// How the distance between a predicted and a matched colour point is turned into residuals. The engine uses `Cauchy`;
/// the others exist for comparison (docs/estimation.md, benchmarks/).
enum class ResidualForm {
    Pixels,        ///< the two differences in pixels
    Normalised,    ///< divided by the colour focal length
    InlierScaled,  ///< scaled so that a difference of `kInlierPx` gives `kInlierResidual`
    Cauchy,        ///< along the difference, growing like √log beyond `kCauchyPx`
    Bounded,       ///< along the difference, bounded (Geman and McClure)
};

/// Difference in pixels at which the Cauchy form changes from linear to logarithmic, about four standard deviations of
/// a correct match. Between 0.4 and 2.5 the accuracy is the same; larger values make the fits faster.
constexpr double kCauchyPx = 2.0;

/// Differences between colour points and infrared points mapped by K_colour · R · K_infrared⁻¹, as residuals of a
/// rotation given by three angles in radians. Each pair gives two residuals. The interface is that of Eigen's
/// non-linear optimisation module.
class RotationCost {
public:
    using Scalar = double;
    enum { InputsAtCompileTime = Eigen::Dynamic, ValuesAtCompileTime = Eigen::Dynamic };
    using InputType = Eigen::VectorXd;
    using ValueType = Eigen::VectorXd;
    using JacobianType = Eigen::MatrixXd;

    /// Colour points are in pixels of the colour model. `cauchyPx`: the scale of the Cauchy form.
    RotationCost(const std::vector<cv::Point2f>& infraredPoints, const std::vector<cv::Point2f>& colourPoints,
                 const CameraPair& cameras, ResidualForm form = ResidualForm::Cauchy, double cauchyPx = kCauchyPx);
    /// Selects pairs of another cost by index, with its form or with another one.
    RotationCost(const RotationCost& all, const std::vector<int>& indices);
    RotationCost(const RotationCost& all, const std::vector<int>& indices, ResidualForm form);

    int pairs() const { return static_cast<int>(rays_.size()); }
    int inputs() const { return 3; }
    int values() const { return 2 * pairs(); }

    int operator()(const InputType& anglesRad, ValueType& terms) const;
    /// Forward differences with a constant step; a step relative to an angle near 0° would be lost in rounding.
    int df(const InputType& anglesRad, JacobianType& jacobian) const;

    /// The residual of each pair: the length of its two components.
    void residuals(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const;
    /// The sum of the squared residuals of all pairs.
    double squaredError(const Eigen::Vector3d& anglesRad) const;
    /// Unit vectors of each pair's points, each in its own camera's axes.
    void directions(std::vector<Eigen::Vector3d>* infrared, std::vector<Eigen::Vector3d>* colour) const;
    double focalLengthPx() const { return fx_; }
    /// The distance of each pair's colour point from its prediction, in pixels of the colour model.
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
    // Cache of the last evaluation: the solver requests the Jacobian at the angles that it has just evaluated.
    mutable Eigen::Vector3d lastAnglesRad_;
    mutable ValueType lastTerms_;
};

}  // namespace vq
