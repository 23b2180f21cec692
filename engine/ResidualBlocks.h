#pragma once

#include "engine/RotationPolish.h"
#include "engine/SolutionQuality.h"

#include <Eigen/Core>

#include <vector>

namespace vq {

struct EvaluatedTerm;

/// Residuals of a fit in blocks of matches that are likely to share their disturbances: those of one still in one
/// quarter of the infrared image.
///
/// Neighbouring matches have correlated errors (shade, foliage, wind), so the number of matches says little about the
/// uncertainty of the angles. It is estimated by leaving out one block after the other (delete-a-group jackknife;
/// Efron, The Jackknife, the Bootstrap and Other Resampling Plans, 1982). Each time one Gauss-Newton step of the fit is
/// taken with unchanged weights. One thread.
class ResidualBlocks {
public:
    /// Linearises at the fitted rotation. The references must outlive the object.
    ResidualBlocks(const Projection& projection, const Eigen::Matrix3d& rotation, const FitOptions& options);

    /// The matches of one still.
    void addStill(const std::vector<MeasuredMatch>& matches);

    /// Standard deviation of a rotation about each axis of the colour camera in radians: from quarters of stills or
    /// from whole stills, whichever is larger. Infinite with fewer than four quarters.
    Eigen::Vector3d deviationRad() const;
    ModelCheck checkModel() const;

private:
    /// Unknowns: the rotation, then those of each departure in the order of `ModelDeparture`.
    static constexpr int kUnknowns = 3 + 1 + 2 + 1 + 3 + 2 + 3;
    using Vector = Eigen::Matrix<double, kUnknowns, 1>;
    using Matrix = Eigen::Matrix<double, kUnknowns, kUnknowns>;

    struct Block {
        Matrix normal = Matrix::Zero();
        Vector gradient = Vector::Zero();
        std::size_t matches = 0;
    };
    /// Estimates of some unknowns from all blocks, and their covariance from leaving out blocks.
    struct Estimate {
        Eigen::VectorXd value;
        Eigen::MatrixXd covariance;
    };

    double leastDeviation(std::size_t departure) const;
    std::size_t quarterOf(const cv::Point2f& infrared) const;
    Eigen::Matrix<double, 2, kUnknowns> jacobian(const EvaluatedTerm& at, double inverseDepth) const;
    Estimate estimate(const std::vector<int>& unknowns, const std::vector<Block>& blocks) const;

    const Projection& projection_;
    const Eigen::Matrix3d rotation_;
    const FitOptions& options_;
    std::vector<Block> quarters_;
    std::vector<Block> stills_;
    std::size_t matches_ = 0;
    double squaredPixelsPerMetre_ = 0;  ///< of a translation across the view, summed over the matches
};

}  // namespace vq
