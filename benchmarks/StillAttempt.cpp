#include "benchmarks/StillAttempt.h"

namespace fieldcal {
namespace {

/// The selection takes the ninth frame at the earliest, and needs as many of each still to see that the hand moved.
constexpr int kGrabsPerStill = 20;

}  // namespace

StillAttempt::StillAttempt(const CameraParameters& parameters, const ColourCamera& camera, int pairLimit)
    : camera_(camera), engine_(context_, parameters), attempt_(engine_, watch_, light_, pairLimit) {}

StillAttempt::Outcome StillAttempt::show(const FrameRecords& still) {
    auto outcome = Outcome::Continues;
    for (int i = 0; i < kGrabsPerStill && outcome == Outcome::Continues; ++i)
        outcome = attempt_.processFrame(
            {still.leftInfrared, camera_.colourOf(still), still.rightInfrared, still.depth});
    return outcome;
}

Eigen::Matrix3d StillAttempt::rotation() {
    Eigen::Matrix<float, 3, 3, Eigen::RowMajor> rotation;
    engine_.getRotationMatrix(rotation.data());
    return rotation.cast<double>();
}

double StillAttempt::errorDeg() {
    return differenceDeg(rotation(), camera_.truth);
}

}  // namespace fieldcal
