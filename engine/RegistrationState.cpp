#include "engine/RegistrationState.h"

#include "diagnostics/Logger.h"
#include "engine/Rotation.h"
#include "engine/TextForms.h"

namespace vq {
namespace {

constexpr std::array<float, 3> kAcceptedDeg{4.0F, 4.0F, 3.0F};

float clamped(float value, const Item& item) {
    if (value > item.max) return item.max;
    if (value < item.min) return item.min;
    return value;
}

}  // namespace

bool Item::isInRange(float otherValue) const {
    fieldcal::logMessage(fieldcal::kInfo, "Item::isInRange", "min, otherValue, max = %f %f %f",
                         static_cast<double>(min), static_cast<double>(otherValue), static_cast<double>(max));
    return min <= otherValue && otherValue <= max;
}

void RegistrationState::setExtrinsics(const Pose& depthToColour) {
    pose_ = depthToColour;
    resetState();
}

void RegistrationState::resetState() {
    // The ERROR level is intentional: the line must appear in every log.
    fieldcal::logMessage(fieldcal::kError, "RegistrationState::resetState", "extrinsics in resetState: %s",
                         poseEulerText(pose_).c_str());
    const Eigen::Vector3d anglesRad = anglesFromRotation(pose_.topLeftCorner<3, 3>().cast<double>());
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double degrees = anglesRad[static_cast<Eigen::Index>(axis)] * kDegreesPerRadian;
        items_[axis] = {-kAcceptedDeg[axis], kAcceptedDeg[axis], static_cast<float>(degrees)};
    }
}

bool RegistrationState::allInRange(const std::array<double, 3>& anglesDeg) const {
    bool all = true;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const bool inRange = items_[axis].isInRange(static_cast<float>(anglesDeg[axis]));
        all = all && inRange;
    }
    return all;
}

void RegistrationState::setValues(float a0Deg, float a1Deg, float a2Deg) {
    items_[0].value = a0Deg;
    items_[1].value = a1Deg;
    items_[2].value = a2Deg;
}

void RegistrationState::beginDrag(float x, float y) {
    startDeg_ = values();
    touchDown_ = {x, y};
}

void RegistrationState::drag(float x) {
    const float width = dragArea_[0];
    const bool begun = touchDown_[0] != -1.0F || touchDown_[1] != -1.0F;
    if (!(width > 0.0F) || !begun) return;
    items_[0].value = clamped(startDeg_[0], items_[0]);
    items_[1].value = clamped(startDeg_[1] + (x - touchDown_[0]) * (2.0F / width) * items_[1].max, items_[1]);
    items_[2].value = clamped(startDeg_[2], items_[2]);
}

}  // namespace vq
