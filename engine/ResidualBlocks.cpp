#include "engine/ResidualBlocks.h"

#include "camera/Rotation.h"
#include "engine/FitTerm.h"

#include <Eigen/Cholesky>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace vq {
namespace {

/// Blocks with fewer matches are ignored, because their normal equations alone are not meaningful.
constexpr std::size_t kMinimumOfBlock = 10;
constexpr std::size_t kMinimumBlocks = 4;
/// A departure whose probability is lower counts as real. The bound is strict because each calibration tests six
/// departures.
constexpr double kImprobable = 1e-5;

constexpr double kMinScaleDoubt = 0.02;
constexpr double kMinPixelsPerMetre = 1e-3;  ///< below this, a translation cannot be observed

/// The unknowns of each departure, and the standard deviation that scenes without it show beyond the one from the
/// blocks. Shade, foliage and slightly wrong distances distort an image by a tenth or two of a pixel.
struct DepartureUnknowns {
    int first, count;
    double leastDeviation;
};
constexpr std::array<DepartureUnknowns, kModelDepartureCount> kDepartures{{
    {3, 1, 5e-4},    // focal length, relative
    {4, 2, 0.4},     // principal point, pixels
    {6, 1, 1e-3},    // distortion, k1
    {7, 3, 0.03},    // translation, as its mean displacement in pixels
    {10, 2, 0.15},   // rolling shear, pixels from top to bottom
    {12, 3, 1.5e-4}  // second rotation, radians
}};

/// Probability that a chi-squared variable with 1, 2 or 3 degrees of freedom exceeds a Wald statistic.
double probabilityAbove(double statistic, int freedom) {
    if (!(statistic > 0)) return 1;
    const double gauss = std::exp(-statistic / 2);
    if (freedom == 2) return gauss;
    const double tails = std::erfc(std::sqrt(statistic / 2));
    return freedom == 1 ? tails : tails + std::sqrt(2 * statistic / fieldcal::kPi) * gauss;
}

}  // namespace

ModelDeparture ModelCheck::strongest() const {
    return static_cast<ModelDeparture>(std::min_element(probability.begin(), probability.end()) - probability.begin());
}

std::optional<ModelDeparture> ModelCheck::departure() const {
    const ModelDeparture found = strongest();
    if (probability[static_cast<std::size_t>(found)] >= kImprobable) return std::nullopt;
    return found;
}

ResidualBlocks::ResidualBlocks(const Projection& projection, const Eigen::Matrix3d& rotation, const FitOptions& options)
    : projection_(projection), rotation_(rotation), options_(options) {}

std::size_t ResidualBlocks::quarterOf(const cv::Point2f& infrared) const {
    const fieldcal::CameraModel& camera = projection_.cameras.infrared;
    return (infrared.x < static_cast<float>(camera.width) / 2 ? 0U : 1U) +
           (infrared.y < static_cast<float>(camera.height) / 2 ? 0U : 2U);
}

Eigen::Matrix<double, 2, ResidualBlocks::kUnknowns> ResidualBlocks::jacobian(const EvaluatedTerm& at,
                                                                             double inverseDepth) const {
    const fieldcal::CameraModel& camera = projection_.cameras.colour;
    const Eigen::Vector2d onPlane = at.point.head<2>() / at.point.z();
    const Eigen::Vector2d fromCentrePx(camera.fx * onPlane.x(), camera.fy * onPlane.y());
    const double height = camera.fy * onPlane.y() / camera.height;
    Eigen::Matrix<double, 2, kUnknowns> j = Eigen::Matrix<double, 2, kUnknowns>::Zero();
    j.leftCols<3>() = at.pixelsPerTurn();
    j.col(3) = fromCentrePx;
    j.block<2, 2>(0, 4).setIdentity();
    j.col(6) = fromCentrePx * onPlane.squaredNorm();
    j.block<2, 3>(0, 7) = at.pixelsPerPoint * inverseDepth;
    j.block<2, 2>(0, 10) = height * Eigen::Matrix2d::Identity();
    if (onPlane.y() < 0) j.rightCols<3>() = j.leftCols<3>();
    return j;
}

void ResidualBlocks::addStill(const std::vector<MeasuredMatch>& matches) {
    std::array<Block, 4> quarters;
    const std::vector<FitTerm> terms = fitTerms(matches, projection_, options_);
    for (std::size_t i = 0; i < terms.size(); ++i) {
        const FitTerm& term = terms[i];
        const EvaluatedTerm at(term, rotation_, projection_, term.inverseDepth, options_.cauchy);
        const auto j = jacobian(at, term.inverseDepth);
        Block& block = quarters[quarterOf(matches[i].place.infrared)];
        // The curvature of the Cauchy loss, averaged over the directions of the residual, is the square of its weight.
        block.normal += at.weight * at.weight * j.transpose() * term.information * j;
        block.gradient += at.weight * j.transpose() * term.information * at.residualPx;
        ++block.matches;
        ++matches_;
        squaredPixelsPerMetre_ += (at.pixelsPerPoint.leftCols<2>() * term.inverseDepth).squaredNorm() / 2;
    }
    Block still;
    for (const Block& block : quarters) {
        if (block.matches < kMinimumOfBlock) continue;
        quarters_.push_back(block);
        still.normal += block.normal;
        still.gradient += block.gradient;
        still.matches += block.matches;
    }
    if (still.matches > 0) stills_.push_back(still);
}

ResidualBlocks::Estimate ResidualBlocks::estimate(const std::vector<int>& unknowns,
                                                  const std::vector<Block>& blocks) const {
    const auto size = static_cast<Eigen::Index>(unknowns.size());
    const auto chosen = [&](const Matrix& normal, const Vector& gradient, Eigen::MatrixXd* n, Eigen::VectorXd* g) {
        n->resize(size, size);
        g->resize(size);
        for (Eigen::Index row = 0; row < size; ++row) {
            (*g)[row] = gradient[unknowns[static_cast<std::size_t>(row)]];
            for (Eigen::Index column = 0; column < size; ++column)
                (*n)(row, column) =
                    normal(unknowns[static_cast<std::size_t>(row)], unknowns[static_cast<std::size_t>(column)]);
        }
    };
    Matrix normal = Matrix::Zero();
    Vector gradient = Vector::Zero();
    for (const Block& block : blocks) {
        normal += block.normal;
        gradient += block.gradient;
    }
    Eigen::MatrixXd n;
    Eigen::VectorXd g;
    chosen(normal, gradient, &n, &g);
    Estimate result{n.ldlt().solve(-g), Eigen::MatrixXd::Zero(size, size)};
    const auto count = static_cast<double>(blocks.size());
    std::vector<Eigen::VectorXd> without;
    Eigen::VectorXd mean = Eigen::VectorXd::Zero(size);
    for (const Block& block : blocks) {
        chosen(normal - block.normal, gradient - block.gradient, &n, &g);
        without.emplace_back(n.ldlt().solve(-g));
        mean += without.back() / count;
    }
    for (const Eigen::VectorXd& value : without)
        result.covariance += (count - 1) / count * (value - mean) * (value - mean).transpose();
    return result;
}

Eigen::Vector3d ResidualBlocks::deviationRad() const {
    if (quarters_.size() < kMinimumBlocks) return Eigen::Vector3d::Constant(std::numeric_limits<double>::infinity());
    Eigen::Vector3d variances = estimate({0, 1, 2}, quarters_).covariance.diagonal();
    if (stills_.size() >= 2) variances = variances.cwiseMax(estimate({0, 1, 2}, stills_).covariance.diagonal());
    return variances.cwiseSqrt();
}

/// Lower bound of the standard deviation in the units of the departure's unknowns. For a translation it consists of a
/// displacement of some hundredths of a pixel and a share of the translation itself, because a common relative error of
/// all distances looks like a longer or shorter translation.
double ResidualBlocks::leastDeviation(std::size_t departure) const {
    const double least = kDepartures[departure].leastDeviation;
    if (departure != static_cast<std::size_t>(ModelDeparture::Translation)) return least;
    const double pixelsPerMetre =
        std::sqrt(squaredPixelsPerMetre_ / static_cast<double>(std::max<std::size_t>(matches_, 1)));
    const double ofScale = options_.scale != nullptr ? options_.scale->relativeDeviation : 0;
    return std::hypot(least / std::max(pixelsPerMetre, kMinPixelsPerMetre),
                      std::max(ofScale, kMinScaleDoubt) * projection_.translationM.norm());
}

ModelCheck ResidualBlocks::checkModel() const {
    ModelCheck check;
    if (quarters_.size() < kMinimumBlocks) return check;
    for (std::size_t i = 0; i < kDepartures.size(); ++i) {
        const DepartureUnknowns& own = kDepartures[i];
        std::vector<int> unknowns(3 + static_cast<std::size_t>(own.count));
        std::iota(unknowns.begin(), unknowns.begin() + 3, 0);
        std::iota(unknowns.begin() + 3, unknowns.end(), own.first);
        const Estimate estimated = estimate(unknowns, quarters_);
        const Eigen::VectorXd value = estimated.value.tail(own.count);
        Eigen::MatrixXd covariance = estimated.covariance.bottomRightCorner(own.count, own.count);
        covariance.diagonal().array() += std::pow(leastDeviation(i), 2);
        check.probability[i] = probabilityAbove(value.dot(covariance.ldlt().solve(value)), own.count);
    }
    return check;
}

}  // namespace vq
