#include "engine/RotationFit.h"

#include <unsupported/Eigen/NonLinearOptimization>

#include <cmath>

namespace vq {
namespace {

constexpr double kStepBoundFactor = 100.0;
constexpr int kEvaluationsPerPoint = 800;

bool toleranceReached(Eigen::LevenbergMarquardtSpace::Status status) {
    using namespace Eigen::LevenbergMarquardtSpace;
    return status == RelativeReductionTooSmall || status == RelativeErrorTooSmall ||
           status == RelativeErrorAndReductionTooSmall;
}

}  // namespace

bool fitRotationLM(const RotationCost& cost, const Eigen::Vector3d& initialAnglesRad, Eigen::Vector3d* anglesRad) {
    RotationCost functor = cost;
    Eigen::LevenbergMarquardt<RotationCost, double> solver(functor);
    solver.parameters.factor = kStepBoundFactor;
    solver.parameters.ftol = solver.parameters.xtol = std::sqrt(2.220446049250313e-16);
    solver.parameters.gtol = 0.0;
    solver.parameters.maxfev = kEvaluationsPerPoint * cost.pairs();
    Eigen::VectorXd x = initialAnglesRad;
    Eigen::LevenbergMarquardtSpace::Status status = solver.minimizeInit(x);
    if (status == Eigen::LevenbergMarquardtSpace::ImproperInputParameters) return false;
    do {
        status = solver.minimizeOneStep(x);
    } while (status == Eigen::LevenbergMarquardtSpace::Running);
    if (!toleranceReached(status) || !x.allFinite()) return false;
    *anglesRad = x;
    return true;
}

}  // namespace vq
