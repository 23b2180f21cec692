#include "engine/RotationFit.h"

#include <unsupported/Eigen/NonLinearOptimization>

#include <cmath>

namespace vq {
namespace {

constexpr double kStepBoundFactor = 100.0;
constexpr int kEvaluationsPerPoint = 800;
constexpr double kDifferenceStepRad = 1e-7;

/// The cost with the interface of Eigen's non-linear optimisation module. It keeps the last evaluation, because the
/// solver requests the Jacobian at the angles that it has just evaluated.
class FitFunctor {
public:
    using Scalar = double;
    enum { InputsAtCompileTime = Eigen::Dynamic, ValuesAtCompileTime = Eigen::Dynamic };
    using InputType = Eigen::VectorXd;
    using ValueType = Eigen::VectorXd;
    using JacobianType = Eigen::MatrixXd;

    explicit FitFunctor(const RotationCost& cost) : cost_(cost) {}

    int inputs() const { return 3; }
    int values() const { return 2 * cost_.pairs(); }

    int operator()(const InputType& anglesRad, ValueType& terms) {
        cost_.terms(anglesRad, &terms);
        lastAnglesRad_ = anglesRad;
        lastTerms_ = terms;
        return 0;
    }

    /// Forward differences with a constant step; a step relative to an angle near 0° would be lost in rounding.
    int df(const InputType& anglesRad, JacobianType& jacobian) {
        const Eigen::Vector3d centreRad = anglesRad;
        ValueType terms(values());
        if (lastAnglesRad_ != centreRad) (*this)(centreRad, terms);
        const ValueType here = lastTerms_;
        for (Eigen::Index axis = 0; axis < 3; ++axis) {
            Eigen::Vector3d movedRad = centreRad;
            movedRad[axis] += kDifferenceStepRad;
            cost_.terms(movedRad, &terms);
            jacobian.col(axis) = (terms - here) / (movedRad[axis] - centreRad[axis]);
        }
        return 0;
    }

private:
    const RotationCost& cost_;
    Eigen::Vector3d lastAnglesRad_ = Eigen::Vector3d::Constant(std::nan(""));
    ValueType lastTerms_;
};

bool toleranceReached(Eigen::LevenbergMarquardtSpace::Status status) {
    using namespace Eigen::LevenbergMarquardtSpace;
    return status == RelativeReductionTooSmall || status == RelativeErrorTooSmall ||
           status == RelativeErrorAndReductionTooSmall;
}

}  // namespace

bool fitRotationLM(const RotationCost& cost, const Eigen::Vector3d& initialAnglesRad, Eigen::Vector3d* anglesRad) {
    FitFunctor functor(cost);
    Eigen::LevenbergMarquardt<FitFunctor, double> solver(functor);
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
