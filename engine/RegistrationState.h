#pragma once

#include <Eigen/Core>

#include <array>
#include <limits>

namespace vq {

/// Rigid transform, rotation in the upper-left 3 x 3, translation (metres) in the last column.
using Pose = Eigen::Matrix<float, 4, 4, Eigen::RowMajor>;

/// An angle in degrees with the range in which an estimate of it is accepted. The range is absolute.
struct Item {
    float min = std::numeric_limits<float>::quiet_NaN();
    float max = std::numeric_limits<float>::quiet_NaN();
    float value = std::numeric_limits<float>::quiet_NaN();

    /// Both ends are inclusive; NaN anywhere is out of range. Logs the three numbers at INFO.
    bool isInRange(float otherValue) const;
};

/// Factory extrinsics, the three current angles with their acceptance ranges, and the drag gesture. Not synchronised:
/// `RegistrationContext` holds the lock.
class RegistrationState {
public:
    /// Stores the pose and sets the items from it.
    void setExtrinsics(const Pose& depthToColour);
    /// Sets the items back to the angles of the stored pose with the ranges ±4, ±4, ±3 degrees.
    void resetState();

    /// Degrees. All three tests are always made, because each of them is logged.
    bool allInRange(const std::array<double, 3>& anglesDeg) const;
    void setValues(float a0Deg, float a1Deg, float a2Deg);
    std::array<float, 3> values() const { return {items_[0].value, items_[1].value, items_[2].value}; }
    const Item& item(int axis) const { return items_[static_cast<std::size_t>(axis)]; }
    const Pose& extrinsics() const { return pose_; }

    void setTouchAreaSize(float width, float height) { touchArea_ = {width, height}; }
    void setDragAreaSize(float width, float height) { dragArea_ = {width, height}; }
    void beginDrag(float x, float y);
    /// Changes angle 1 by its whole range for a drag across the width of the area, and clamps all three angles to their
    /// ranges. Has no effect without a drag area or before `beginDrag`.
    void drag(float x);
    void endDrag() { touchDown_ = {-1.0F, -1.0F}; }
    std::array<float, 2> touchDownPoint() const { return touchDown_; }

private:
    Pose pose_ = Pose::Zero();
    std::array<Item, 3> items_;
    std::array<float, 3> startDeg_{};
    std::array<float, 2> touchDown_{-1.0F, -1.0F};
    std::array<float, 2> touchArea_{-1.0F, -1.0F};
    std::array<float, 2> dragArea_{-1.0F, -1.0F};
};

}  // namespace vq
