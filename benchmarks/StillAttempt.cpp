#include "benchmarks/StillAttempt.h"

#include "engine/Rotation.h"

namespace fieldcal {
namespace {

/// The selection takes the ninth frame at the earliest.
constexpr int kGrabsPerStill = 20;
/// Number of frames of a movement: too few for a selection.
constexpr int kMovingGrabs = 5;

/// Returns an image that differs strongly from every still.
ImageFrame32 inverted(const ImageFrame32& colour) {
    ImageFrame32 frame = colour;
    for (std::size_t i = 0; i < frame.byteCount(); ++i)
        frame.bytes()[i] = static_cast<std::uint8_t>(255 - frame.bytes()[i]);
    return frame;
}

}  // namespace

StillAttempt::StillAttempt(const CameraParameters& parameters, const JudgedCamera& camera, int pairLimit)
    : camera_(camera), engine_(context_, parameters), attempt_(engine_, watch_, light_, pairLimit) {}

StillAttempt::Outcome StillAttempt::show(const FrameRecords& still) {
    auto outcome = Outcome::Continues;
    // The hand must appear to move between two stills, even when the stills are similar.
    const ImageFrame32 moving = inverted(still.colour[camera_.camera]);
    for (int i = 0; i < kMovingGrabs; ++i)
        attempt_.processFrame({still.leftInfrared, moving, still.rightInfrared, still.depth});
    for (int i = 0; i < kGrabsPerStill && outcome == Outcome::Continues; ++i)
        outcome =
            attempt_.processFrame({still.leftInfrared, still.colour[camera_.camera], still.rightInfrared, still.depth});
    return outcome;
}

Eigen::Matrix3d StillAttempt::rotation() {
    Rotation rotation{};
    engine_.getRotationMatrix(rotation.data());
    return vq::matrixOf(rotation);
}

double StillAttempt::errorDeg() {
    return vq::angleBetweenDeg(rotation(), camera_.truth);
}

}  // namespace fieldcal
