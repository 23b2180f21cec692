#include "simulator/handheld/Hand.h"

#include "simulator/synthesis/Rotation.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::handheld {

using synthesis::rotationFromAngles;

namespace {

constexpr double kMaxMovementMetres = 0.05;
constexpr double kTremorDeg = 0.02;  // about the strongest axis

/// Returns the rotation by a share of the angle about the same axis.
cv::Matx33d part(const cv::Matx33d& rotation, double share) {
    const double cosine = std::clamp((cv::trace(rotation) - 1) / 2, -1.0, 1.0), angle = std::acos(cosine);
    if (angle < 1e-9) return cv::Matx33d::eye();
    cv::Vec3d axis(rotation(2, 1) - rotation(1, 2), rotation(0, 2) - rotation(2, 0), rotation(1, 0) - rotation(0, 1));
    axis *= 1 / cv::norm(axis);
    const double c = std::cos(angle * share), s = std::sin(angle * share);
    const cv::Matx33d cross(0, -axis[2], axis[1], axis[2], 0, -axis[0], -axis[1], axis[0], 0);
    return cv::Matx33d::eye() + cross * s + cross * cross * (1 - c);
}

}  // namespace

Hand::Hand(std::uint64_t seed, double lowestPitchDeg, double highestPitchDeg)
    : random_(seed, "hand"),
      lowestPitchDeg_(lowestPitchDeg),
      highestPitchDeg_(highestPitchDeg),
      yawDeg_(random_.uniform(0, 360)) {}

const Rest& Hand::rest(int number) {
    while (static_cast<int>(rests_.size()) <= number) {
        Rest rest;
        rest.pose = drawPose();
        rest.heldFrames = 45 + random_.index(25);
        turnDeg_ = random_.uniform(10, 30);
        rest.turnFrames = 14 + static_cast<int>(turnDeg_ * random_.uniform(0.7, 1.1));
        rests_.push_back(rest);
    }
    return rests_[static_cast<std::size_t>(number)];
}

world::Pose Hand::drawPose() {
    yawDeg_ += turnDeg_;
    const double pitchDeg = random_.uniform(lowestPitchDeg_, highestPitchDeg_), rollDeg = random_.uniform(-3, 3);
    world::Pose pose;
    pose.camera_world = rotationFromAngles({0, 0, rollDeg}) * rotationFromAngles({-pitchDeg, 0, 0}) *
                        rotationFromAngles({0, -yawDeg_, 0});
    for (int i = 0; i < 3; ++i)
        pose.centre[i] = random_.uniform(-kMaxMovementMetres, kMaxMovementMetres);
    return pose;
}

world::Pose poseBetween(const world::Pose& from, const world::Pose& to, double way) {
    const double u = std::clamp(way, 0.0, 1.0), share = u * u * u * (10 + u * (6 * u - 15));
    world::Pose pose;
    pose.camera_world = part(to.camera_world * from.camera_world.t(), share) * from.camera_world;
    pose.centre = from.centre + (to.centre - from.centre) * share;
    return pose;
}

cv::Matx33d tremor(std::uint64_t seed, int rest, double frame) {
    synthesis::Random random(seed + static_cast<std::uint64_t>(rest), "tremor");
    const double turn = 2 * kPi / kTremorFrames * frame;
    std::array<double, 3> anglesDeg{};
    for (double& angle : anglesDeg)
        angle = kTremorDeg * random.uniform(0.3, 1) * std::sin(turn + random.uniform(0, 2 * kPi));
    return rotationFromAngles(anglesDeg);
}

}  // namespace fieldcal::handheld
