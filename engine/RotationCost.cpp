#include "engine/RotationCost.h"

#include "engine/Rotation.h"

#include <Eigen/Geometry>

#include <cmath>

namespace vq {

RotationCost::RotationCost(const std::vector<cv::Point2f>& infraredPoints, const std::vector<cv::Point2f>& colourPoints,
                           const CameraPair& cameras, const ResidualLoss& loss)
    : fx_(cameras.colour.fx), fy_(cameras.colour.fy), cx_(cameras.colour.cx), cy_(cameras.colour.cy), loss_(loss) {
    const fieldcal::CameraModel& infrared = cameras.infrared;
    rays_.reserve(infraredPoints.size());
    colours_.reserve(infraredPoints.size());
    for (std::size_t i = 0; i < infraredPoints.size(); ++i) {
        const cv::Point2d p = infraredPoints[i];
        rays_.emplace_back((p.x - infrared.cx) / infrared.fx, (p.y - infrared.cy) / infrared.fy);
        colours_.emplace_back(colourPoints[i].x, colourPoints[i].y);
    }
}

RotationCost::RotationCost(const RotationCost& all, const std::vector<int>& indices)
    : fx_(all.fx_), fy_(all.fy_), cx_(all.cx_), cy_(all.cy_), loss_(all.loss_) {
    rays_.reserve(indices.size());
    colours_.reserve(indices.size());
    for (const int index : indices) {
        rays_.push_back(all.rays_[static_cast<std::size_t>(index)]);
        colours_.push_back(all.colours_[static_cast<std::size_t>(index)]);
    }
}

template <typename Visit>
void RotationCost::visitDifferences(const Eigen::Vector3d& anglesRad, Visit&& visit) const {
    const Eigen::Matrix3d r = rotationFromAngles(anglesRad);
    for (std::size_t i = 0; i < rays_.size(); ++i) {
        const double x = rays_[i][0], y = rays_[i][1];
        const double inverse = 1.0 / (r(2, 0) * x + r(2, 1) * y + r(2, 2));
        const double u = fx_ * (r(0, 0) * x + r(0, 1) * y + r(0, 2)) * inverse + cx_ - colours_[i][0];
        const double v = fy_ * (r(1, 0) * x + r(1, 1) * y + r(1, 2)) * inverse + cy_ - colours_[i][1];
        visit(i, u, v);
    }
}

void RotationCost::terms(const Eigen::Vector3d& anglesRad, Eigen::VectorXd* out) const {
    visitDifferences(anglesRad, [&](std::size_t i, double u, double v) {
        const double perPixel = loss_.perPixel(u * u + v * v);
        (*out)[static_cast<Eigen::Index>(2 * i)] = u * perPixel;
        (*out)[static_cast<Eigen::Index>(2 * i + 1)] = v * perPixel;
    });
}

void RotationCost::residuals(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const {
    out->resize(rays_.size());
    visitDifferences(anglesRad, [&](std::size_t i, double u, double v) {
        const double squaredPx = u * u + v * v;
        (*out)[i] = std::sqrt(squaredPx) * loss_.perPixel(squaredPx);
    });
}

double RotationCost::squaredError(const Eigen::Vector3d& anglesRad) const {
    double sum = 0;
    visitDifferences(anglesRad, [&](std::size_t, double u, double v) {
        const double squaredPx = u * u + v * v;
        const double perPixel = loss_.perPixel(squaredPx);
        sum += squaredPx * perPixel * perPixel;
    });
    return sum;
}

void RotationCost::directions(std::vector<Eigen::Vector3d>* infrared, std::vector<Eigen::Vector3d>* colour) const {
    infrared->clear();
    colour->clear();
    for (std::size_t i = 0; i < rays_.size(); ++i) {
        infrared->push_back(rays_[i].homogeneous().normalized());
        colour->push_back(
            Eigen::Vector3d((colours_[i][0] - cx_) / fx_, (colours_[i][1] - cy_) / fy_, 1.0).normalized());
    }
}

void RotationCost::distancesPx(const Eigen::Vector3d& anglesRad, std::vector<double>* out) const {
    out->resize(rays_.size());
    visitDifferences(anglesRad, [&](std::size_t i, double u, double v) { (*out)[i] = std::sqrt(u * u + v * v); });
}

}  // namespace vq
