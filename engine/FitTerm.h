#pragma once

#include "engine/RotationPolish.h"

#include <Eigen/Core>

#include <cmath>

namespace vq {

/// A match prepared for repeated evaluation.
struct FitTerm {
    Eigen::Vector3d ray;  ///< through the infrared place, on the plane Z = 1
    Eigen::Vector2d colour;
    Eigen::Matrix2d information;
    double inverseDepth;  ///< the disparity instead when the scale is estimated
};

/// A term evaluated at one rotation.
struct EvaluatedTerm {
    Eigen::Vector3d turned;  ///< the ray in the colour camera's axes
    Eigen::Vector3d point;   ///< with the translation, in units of its distance
    Eigen::Vector2d residualPx;
    Eigen::Matrix<double, 2, 3> pixelsPerPoint;
    double squared;  ///< squared residual, in standard deviations
    double weight;   ///< weight under the Cauchy loss

    EvaluatedTerm(const FitTerm& term, const Eigen::Matrix3d& rotation, const Projection& projection,
                  double inverseDepth, double cauchy)
        : turned(rotation * term.ray), point(turned + projection.translationM * inverseDepth) {
        const fieldcal::CameraModel& camera = projection.cameras.colour;
        const double inverse = 1 / point.z();
        residualPx << camera.fx * point.x() * inverse + camera.cx - term.colour.x(),
            camera.fy * point.y() * inverse + camera.cy - term.colour.y();
        pixelsPerPoint << camera.fx * inverse, 0, -camera.fx * point.x() * inverse * inverse,  //
            0, camera.fy * inverse, -camera.fy * point.y() * inverse * inverse;
        squared = residualPx.dot(term.information * residualPx);
        weight = 1 / (1 + squared / (cauchy * cauchy));
    }

    /// Derivative of the projection by a small rotation of the colour camera's axes, in pixels per radian.
    Eigen::Matrix<double, 2, 3> pixelsPerTurn() const {
        Eigen::Matrix3d motion;
        motion << 0, turned.z(), -turned.y(),  //
            -turned.z(), 0, turned.x(),        //
            turned.y(), -turned.x(), 0;
        return pixelsPerPoint * motion;
    }
};

/// Prepares the terms of matches. Matches of unknown distance count as infinitely far.
std::vector<FitTerm> fitTerms(const std::vector<MeasuredMatch>& matches, const Projection& projection,
                              const FitOptions& options);

}  // namespace vq
