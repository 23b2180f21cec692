#include "tools/CameraComparison.h"

#include "engine/Median.h"
#include "engine/Rotation.h"

#include <Eigen/Cholesky>
#include <Eigen/Geometry>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <utility>

namespace fieldcal {
namespace {

constexpr double kOutlierPx = 6.0;
constexpr std::size_t kMinParts = 4;
constexpr int kIterations = 20;
constexpr double kConvergedShare = 1e-3;
constexpr double kTurnStepRad = 1e-5;
constexpr double kMinInformation = 1e-6;
constexpr double kShareStep = 1e-2;
constexpr std::size_t kMinMatches = 100;

vq::MeasuredMatch measured(const vq::EvidenceMatch& match) {
    vq::MeasuredMatch out;
    out.place.infrared = match.infrared;
    out.place.inverseDepth = match.inverseDepth;
    out.colour = match.colour;
    out.information = match.information;
    return out;
}

/// Returns the linear interpolation between two models.
vq::Projection between(const vq::Projection& a, const vq::Projection& b, double share) {
    vq::Projection out = a;
    const auto mixed = [share](float x, float y) { return static_cast<float>(x + share * (y - x)); };
    CameraModel& camera = out.cameras.colour;
    const CameraModel& other = b.cameras.colour;
    camera.cx = mixed(camera.cx, other.cx);
    camera.cy = mixed(camera.cy, other.cy);
    out.translationM += share * (b.translationM - a.translationM);
    return out;
}

/// Unknowns: a small rotation of the colour camera (3), and the share.
using Vector4 = Eigen::Vector4d;
using Matrix4 = Eigen::Matrix4d;

struct Normal {
    Matrix4 matrix = Matrix4::Zero();
    Vector4 gradient = Vector4::Zero();

    void add(const Normal& other, double sign) {
        matrix += sign * other.matrix;
        gradient += sign * other.gradient;
    }
    Vector4 solution() const { return matrix.ldlt().solve(gradient); }
};

/// Index of the still, and quarter of the infrared image.
using BlockKey = std::pair<int, int>;
using Blocks = std::map<BlockKey, Normal>;

BlockKey blockOf(const vq::EvidenceMatch& match, const CameraModel& infrared) {
    const int right = 2 * match.infrared.x >= static_cast<float>(infrared.width) ? 1 : 0;
    const int lower = 2 * match.infrared.y >= static_cast<float>(infrared.height) ? 2 : 0;
    return {match.still, right + lower};
}

Eigen::Matrix3d turnedBy(const Eigen::Matrix3d& rotation, const Eigen::Vector3d& turnRad) {
    const double angle = turnRad.norm();
    if (angle == 0) return rotation;
    return Eigen::AngleAxisd(angle, turnRad / angle).toRotationMatrix() * rotation;
}

/// A least-squares fit of rotation and share, linearized at their present values.
class SharedFit {
public:
    SharedFit(const std::vector<vq::EvidenceMatch>& matches, const StillSolution& first, const vq::Projection& other)
        : matches_(matches), first_(first), other_(other), rotation_(first.rotation) {}

    bool converge() {
        for (int i = 0; i < kIterations; ++i) {
            collect();
            Normal all;
            for (const auto& [key, block] : blocks_)
                all.add(block, 1);
            if (!determinesShare(all)) return false;
            const Vector4 step = all.solution();
            if (!step.allFinite()) return false;
            rotation_ = turnedBy(rotation_, step.head<3>());
            share_ += step[3];
            if (std::abs(step[3]) < kConvergedShare) return true;
        }
        return false;
    }
    double share() const { return share_; }

    /// Returns the standard deviation of the share, estimated by leaving out parts (jackknife). `wholeStills`: a part
    /// is a whole still, otherwise a quarter.
    double deviation(bool wholeStills) const {
        Normal all;
        Blocks parts;
        for (const auto& [key, block] : blocks_) {
            all.add(block, 1);
            parts[{key.first, wholeStills ? 0 : key.second}].add(block, 1);
        }
        std::vector<double> shares;
        for (const auto& [key, part] : parts) {
            Normal rest = all;
            rest.add(part, -1);
            shares.push_back(rest.solution()[3]);
        }
        const double count = static_cast<double>(shares.size());
        if (shares.size() < kMinParts) return std::numeric_limits<double>::infinity();
        const double mean = std::accumulate(shares.begin(), shares.end(), 0.0) / count;
        double squares = 0;
        for (const double share : shares)
            squares += (share - mean) * (share - mean);
        return std::sqrt(squares * (count - 1) / count);
    }

private:
    /// Returns whether the matches determine the share at all: a translation has an effect on near objects only.
    static bool determinesShare(const Normal& all) {
        const Eigen::Matrix3d turns = all.matrix.topLeftCorner<3, 3>();
        const Eigen::Vector3d mixed = all.matrix.topRightCorner<3, 1>();
        return all.matrix(3, 3) - mixed.dot(turns.ldlt().solve(mixed)) > kMinInformation;
    }

    Eigen::Vector2d residual(const vq::MeasuredMatch& match, const Vector4& step) const {
        return between(first_.projection, other_, share_ + step[3])
            .residualPx(turnedBy(rotation_, step.head<3>()), match, nullptr);
    }

    void collect() {
        blocks_.clear();
        for (const vq::EvidenceMatch& evidence : matches_) {
            const vq::MeasuredMatch match = measured(evidence);
            const Eigen::Vector2d here = residual(match, Vector4::Zero());
            if (here.norm() > kOutlierPx) continue;
            Eigen::Matrix<double, 2, 4> jacobian;
            for (int i = 0; i < 4; ++i) {
                const double width = i < 3 ? kTurnStepRad : kShareStep;
                jacobian.col(i) = (residual(match, width * Vector4::Unit(i)) - here) / width;
            }
            const double squared = here.dot(match.information * here);
            const double weight = 1 / (1 + squared / (first_.cauchy * first_.cauchy));
            Normal& block = blocks_[blockOf(evidence, first_.projection.cameras.infrared)];
            block.matrix += weight * jacobian.transpose() * match.information * jacobian;
            block.gradient -= weight * jacobian.transpose() * match.information * here;
        }
    }

    const std::vector<vq::EvidenceMatch>& matches_;
    const StillSolution& first_;
    const vq::Projection& other_;
    Eigen::Matrix3d rotation_;
    double share_ = 0;
    Blocks blocks_;
};

}  // namespace

std::optional<StillSolution> solveStills(const std::vector<vq::SelectedImages>& stills,
                                         const CameraParameters& parameters, bool platformCamera) {
    vq::RegistrationContext context;
    vq::CalibratorInterface cameras(context, parameters);
    cameras.setCameraParameters(platformCamera);
    vq::SensorCalibrator calibrator(context, {});
    calibrator.setup();
    for (const vq::SelectedImages& still : stills) {
        if (!calibrator.prepare(still)) continue;
        calibrator.generateMatches();
        if (calibrator.hasEnoughFilledCells()) calibrator.tryDetermineStableSolution();
    }
    const auto evidence = calibrator.evidence();
    if (!calibrator.goodSolution() || !evidence) return std::nullopt;
    StillSolution solution;
    const auto deg = context.state->values();
    solution.rotation = vq::rotationFromAngles(Eigen::Vector3d(deg[0], deg[1], deg[2]) / kDegreesPerRadian);
    solution.quality = calibrator.quality();
    solution.matches = evidence->matches;
    solution.projection = evidence->projection;
    solution.cauchy = evidence->cauchy;
    solution.parallax = calibrator.parallax();
    std::vector<double> residuals;
    for (const vq::EvidenceMatch& match : solution.matches)
        residuals.push_back(evidence->residualPx(match, solution.rotation).norm());
    if (residuals.size() < kMinMatches) return std::nullopt;
    solution.medianPx = vq::medianOf(residuals);
    return solution;
}

std::optional<Preference> preferenceBetween(const std::vector<vq::EvidenceMatch>& matches, const StillSolution& first,
                                            const vq::Projection& other) {
    SharedFit fit(matches, first, other);
    if (!fit.converge()) return std::nullopt;
    const double deviation = std::max(fit.deviation(false), fit.deviation(true));
    if (!std::isfinite(deviation)) return std::nullopt;
    return Preference{fit.share(), deviation};
}

}  // namespace fieldcal
