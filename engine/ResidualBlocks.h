#pragma once

#include "engine/RotationPolish.h"
#include "engine/SolutionQuality.h"

#include <Eigen/Core>

#include <vector>

namespace vq {

struct EvaluatedTerm;

/// What a fit leaves over, in blocks of matches that share what disturbs them: those of one still in one quarter of
/// the infrared image.
///
/// Matches next to each other err together (shade, foliage, a gust of wind), so their number says little about how well
/// the angles are known. Leaving out one block after the other does (delete-a-group jackknife; Efron, The Jackknife,
/// the Bootstrap and Other Resampling Plans, 1982). Each time one Gauss-Newton step of the fit is taken, with the
/// weights as they are. One thread.
class ResidualBlocks {
public:
    /// About the fitted rotation. The references must outlive it.
    ResidualBlocks(const Projection& projection, const Eigen::Matrix3d& rotation, const FitOptions& options);

    /// The matches of one still.
    void addStill(const std::vector<MeasuredMatch>& matches);

    /// One deviation of a turn about each axis of the colour camera, radians: of quarters of stills, or of whole
    /// stills, whichever is larger. Infinite with fewer than four quarters.
    Eigen::Vector3d deviationRad() const;
    ModelCheck checkModel() const;

private:
    /// Unknowns: the turn, then those of each departure in the order of `ModelDeparture`.
    static constexpr int kUnknowns = 3 + 1 + 2 + 1 + 3 + 2 + 3;
    using Vector = Eigen::Matrix<double, kUnknowns, 1>;
    using Matrix = Eigen::Matrix<double, kUnknowns, kUnknowns>;

    struct Block {
        Matrix normal = Matrix::Zero();
        Vector gradient = Vector::Zero();
        std::size_t matches = 0;
    };
    /// Estimates of some unknowns, with all blocks and their covariance by leaving out blocks.
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
