#include "engine/RegistrationContext.h"
#include "engine/RegistrationState.h"
#include "engine/TextForms.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vq::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::FloatNear;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

Pose poseOf(const Eigen::Vector3d& anglesDeg, const Eigen::Vector3f& translation = Eigen::Vector3f::Zero()) {
    Pose pose = Pose::Identity();
    pose.topLeftCorner<3, 3>() = rotationFromAngles(anglesDeg * kDeg).cast<float>();
    pose.topRightCorner<3, 1>() = translation;
    return pose;
}

RegistrationState stateAt(const Eigen::Vector3d& anglesDeg) {
    RegistrationState state;
    state.setExtrinsics(poseOf(anglesDeg));
    return state;
}

TEST(Rotation, IsTheProductOfTheAxisRotations) {
    const Eigen::Vector3d anglesRad(0.3, -0.8, 1.9);
    const Eigen::Matrix3d product = (Eigen::AngleAxisd(anglesRad[2], Eigen::Vector3d::UnitZ()) *
                                     Eigen::AngleAxisd(anglesRad[1], Eigen::Vector3d::UnitY()) *
                                     Eigen::AngleAxisd(anglesRad[0], Eigen::Vector3d::UnitX()))
                                        .toRotationMatrix();
    EXPECT_THAT(rotationFromAngles(anglesRad), NearRotation(product, 1e-12));
}

TEST(Rotation, SurvivesTheRoundTripThroughAngles) {
    constexpr double kQuarter = 1.5707963267948966;
    const Eigen::Vector3d cases[] = {{0, 0, 0},
                                     {1e-9, -1e-9, 1e-9},
                                     {4 * kDeg, -4 * kDeg, 3 * kDeg},
                                     {0.1, kQuarter - 1e-4, 0.2},
                                     {0.1, kQuarter, -0.3},
                                     {-0.4, -kQuarter, 0.0},
                                     {3.1, 0.2, -3.1},
                                     {2 * kQuarter, 0, 0},
                                     {0, 0, -2 * kQuarter}};
    for (const Eigen::Vector3d& anglesRad : cases) {
        const Eigen::Matrix3d rotation = rotationFromAngles(anglesRad);
        EXPECT_THAT(rotation, IsRotation(1e-14));
        EXPECT_THAT(rotationFromAngles(anglesFromRotation(rotation)), NearRotation(rotation, 1e-6))
            << anglesRad.transpose();
    }
}

TEST(Registration, RangesAreInclusiveAndAbsolute) {
    const RegistrationState state = stateAt({3.0, -1.0, 2.0});
    struct Case {
        int axis;
        float deg;
        bool inRange;
    };
    for (const Case& test : {Case{0, 4.0F, true},
                             {0, 4.0001F, false},
                             {0, -4.0F, true},
                             {0, -4.0001F, false},
                             {1, 4.0F, true},
                             {1, -4.5F, false},
                             {2, -3.0F, true},
                             {2, 3.0F, true},
                             {2, 3.0001F, false},
                             {0, kNan, false},
                             {1, INFINITY, false}}) {
        EXPECT_EQ(state.item(test.axis).isInRange(test.deg), test.inRange) << test.axis << " " << test.deg;
        std::array<double, 3> angles{};
        angles[static_cast<std::size_t>(test.axis)] = static_cast<double>(test.deg);
        EXPECT_EQ(state.allInRange(angles), test.inRange) << test.axis << " " << test.deg;
    }
}

TEST(Registration, NothingIsInRangeBeforeTheFirstReset) {
    const RegistrationContext context;
    EXPECT_FALSE(context.state->allInRange({0, 0, 0}));
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_FALSE(context.state->item(axis).isInRange(0.0F));
}

TEST(Registration, ResetDerivesTheItemsFromThePose) {
    RegistrationState state = stateAt({1.25, -2.5, 0.75});
    EXPECT_THAT(state.values(), ElementsAre(FloatNear(1.25F, 1e-5F), FloatNear(-2.5F, 1e-5F), FloatNear(0.75F, 1e-5F)));
    state.setValues(9.0F, 8.0F, 7.0F);
    EXPECT_THAT(state.values(), ElementsAre(9.0F, 8.0F, 7.0F));
    state.resetState();
    EXPECT_THAT(state.values(), ElementsAre(FloatNear(1.25F, 1e-5F), FloatNear(-2.5F, 1e-5F), FloatNear(0.75F, 1e-5F)));

    const RegistrationState identity = stateAt({0, 0, 0});
    EXPECT_THAT(identity.values(), ElementsAre(0.0F, 0.0F, 0.0F));
    const float limits[] = {4.0F, 4.0F, 3.0F};
    for (int axis = 0; axis < 3; ++axis) {
        EXPECT_EQ(identity.item(axis).min, -limits[axis]);
        EXPECT_EQ(identity.item(axis).max, limits[axis]);
    }
}

TEST(Registration, LogsTheResetAsAnErrorAndEveryRangeTest) {
    ::testing::internal::CaptureStderr();
    RegistrationState state;
    state.setExtrinsics(poseOf({1, -2, 0.5}, {0.025F, 0, -0.5F}));
    state.allInRange({5.0, 5.0, 5.0});
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "ERROR: : extrinsics in resetState: R [ 1.0000 -2.0000  0.5000] T [ 0.0250  0.0000 -0.5000]\n"
              "INFO: : min, otherValue, max = -4.000000 5.000000 4.000000\n"
              "INFO: : min, otherValue, max = -4.000000 5.000000 4.000000\n"
              "INFO: : min, otherValue, max = -3.000000 5.000000 3.000000\n");
}

TEST(Drag, MovesOnlyTheSecondAngleByTheHorizontalWay) {
    struct Case {
        float startDeg, x, expectedDeg;
    };
    // The area is 400 wide and the finger came down at 100.
    for (const Case& test : {Case{0.0F, 100.0F, 0.0F},
                             {0.0F, 300.0F, 4.0F},
                             {0.5F, 300.0F, 4.0F},
                             {0.0F, 150.0F, 1.0F},
                             {0.0F, -900.0F, -4.0F},
                             {-1.0F, 200.0F, 1.0F},
                             {2.0F, 0.0F, 0.0F}}) {
        RegistrationState state = stateAt({1.0, 0, -2.0});
        state.setValues(1.0F, test.startDeg, -2.0F);
        state.setDragAreaSize(400, 300);
        state.beginDrag(100, 50);
        state.drag(test.x / 3.0F);  // where it was in between does not matter
        state.drag(test.x);
        EXPECT_THAT(state.values(), ElementsAre(1.0F, FloatNear(test.expectedDeg, 1e-6F), -2.0F)) << test.x;
    }
}

TEST(Drag, PullsTheOtherAnglesIntoTheirRanges) {
    RegistrationState state = stateAt({0, 0, 0});
    state.setValues(5.5F, 0.0F, -3.5F);
    state.setDragAreaSize(400, 300);
    state.beginDrag(100, 50);
    state.drag(100);
    EXPECT_THAT(state.values(), ElementsAre(4.0F, 0.0F, -3.0F));
}

TEST(Drag, NeedsATouchAndAnArea) {
    RegistrationState state = stateAt({0, 0, 0});
    state.beginDrag(100, 50);
    state.drag(300);
    EXPECT_THAT(state.values(), ElementsAre(0.0F, 0.0F, 0.0F)) << "no area";
    state.setDragAreaSize(400, 300);
    state.endDrag();
    EXPECT_THAT(state.touchDownPoint(), ElementsAre(-1.0F, -1.0F));
    state.drag(300);
    EXPECT_THAT(state.values(), ElementsAre(0.0F, 0.0F, 0.0F)) << "no touch";
}

TEST(TextForms, AreVerbatim) {
    const Pose pose = poseOf({90, 0, 0}, {1.5F, -2.25F, 0.0F});
    EXPECT_EQ(poseText(poseOf({1, -2, 0.5}, {1.5F, -2.25F, 0.0F}), false),
              "R [ 1.0000 -2.0000  0.5000] T [ 1.5000 -2.2500  0.0000]");
    EXPECT_EQ(poseText(pose, true), "R [a= 90.0000 deg |  1.0000  0.0000  0.0000] T [ 1.5000 -2.2500  0.0000]");
    EXPECT_EQ(rotationVectorText({0.5, -1, 2}, 3.25), "[0.500000 -1.000000 2.000000 | 3.250000]");
    EXPECT_EQ(matrixText(Eigen::Matrix3d(Eigen::Matrix3d::Identity())),
              "1.000000 0.000000 0.000000\n0.000000 1.000000 0.000000\n0.000000 0.000000 1.000000\n");
    EXPECT_EQ(matrixText(Eigen::Matrix<double, 3, 4>(Eigen::Matrix<double, 3, 4>::Constant(0.5))),
              "0.500000 0.500000 0.500000 0.500000\n0.500000 0.500000 0.500000 0.500000\n"
              "0.500000 0.500000 0.500000 0.500000\n");
    EXPECT_EQ(vectorText(Eigen::Vector2d(1, -2)), "1.000000 -2.000000 ");
    EXPECT_EQ(intrinsicsText({628, 468, 580.0F, 581.5F, 314.0F, 234.25F}),
              "fxfy = [580.000000 581.500000] cxcy=[314.000000 234.250000] k1k2k3=[0.000000 0.000000 0.000000] "
              "p1p2=[0.000000 0.000000]");
}

}  // namespace
}  // namespace vq::testing
