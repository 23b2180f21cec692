#include "engine/RegistrationContext.h"
#include "engine/TextForms.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vq::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::FloatNear;

Pose poseOf(const Eigen::Vector3d& anglesDeg, const Eigen::Vector3f& translation = {0.025F, 0, -0.5F}) {
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

TEST(Rotation, TurnsAboutXThenYThenZAndSurvivesTheRoundTrip) {
    constexpr double kQuarter = 1.5707963267948966;
    // Zero, nearly zero, the ends of the ranges, near and at gimbal lock, and half turns.
    const Eigen::Vector3d cases[] = {{0, 0, 0},        {1e-9, -1e-9, 1e-9},  {0.07, -0.07, 0.05},
                                     {0.1, 1.57, 0.2}, {0.1, kQuarter, -.3}, {-0.4, -kQuarter, 0.0},
                                     {3.1, 0.2, -3.1}, {2 * kQuarter, 0, 0}, {0, 0, -2 * kQuarter}};
    for (const Eigen::Vector3d& rad : cases) {
        const Eigen::Matrix3d product =
            (Eigen::AngleAxisd(rad[2], Eigen::Vector3d::UnitZ()) * Eigen::AngleAxisd(rad[1], Eigen::Vector3d::UnitY()) *
             Eigen::AngleAxisd(rad[0], Eigen::Vector3d::UnitX()))
                .toRotationMatrix();
        EXPECT_THAT(rotationFromAngles(rad), IsRotation(1e-14));
        EXPECT_THAT(rotationFromAngles(rad), NearRotation(product, 1e-12));
        EXPECT_THAT(rotationFromAngles(anglesFromRotation(product)), NearRotation(product, 1e-6)) << rad.transpose();
    }
}

TEST(Registration, RangesAreInclusiveAndAbsolute) {
    struct Case {
        std::size_t axis;
        float deg;
        bool inRange;
    };
    const Case cases[] = {{0, 4.0F, true}, {0, 4.0001F, false}, {0, -4.0F, true},    {0, -4.0001F, false},
                          {1, 4.0F, true}, {1, -4.5F, false},   {2, -3.0F, true},    {2, 3.0F, true},
                          {0, NAN, false}, {2, NAN, false},     {2, 3.0001F, false}, {1, INFINITY, false}};
    const RegistrationState state = stateAt({3.0, -1.0, 2.0}), beforeAnyReset;
    for (const Case& test : cases) {
        std::array<double, 3> anglesDeg{};
        anglesDeg[test.axis] = static_cast<double>(test.deg);
        EXPECT_EQ(state.allInRange(anglesDeg), test.inRange) << test.axis << " " << test.deg;
        EXPECT_FALSE(beforeAnyReset.item(static_cast<int>(test.axis)).isInRange(test.deg));
    }
}

TEST(Registration, ResetDerivesTheValuesFromThePose) {
    RegistrationState state = stateAt({1.25, -5.5, 0.75});
    state.setValues(9.0F, 8.0F, 7.0F);
    EXPECT_THAT(state.values(), ElementsAre(9.0F, 8.0F, 7.0F));
    state.resetState();
    EXPECT_THAT(state.values(), ElementsAre(FloatNear(1.25F, 1e-5F), FloatNear(-5.5F, 1e-5F), FloatNear(0.75F, 1e-5F)));
    EXPECT_THAT(stateAt({0, 0, 0}).values(), ElementsAre(0.0F, 0.0F, 0.0F));
}

TEST(Registration, LogsTheResetAsAnErrorAndEveryRangeTest) {
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(stateAt({1, -2, 0.5}).allInRange({5.0, 5.0, 5.0}));
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "ERROR: : extrinsics in resetState: R [ 1.0000 -2.0000  0.5000] T [ 0.0250  0.0000 -0.5000]\n"
              "INFO: : min, otherValue, max = -4.000000 5.000000 4.000000\n"
              "INFO: : min, otherValue, max = -4.000000 5.000000 4.000000\n"
              "INFO: : min, otherValue, max = -3.000000 5.000000 3.000000\n");
}

TEST(Drag, MovesTheSecondAngleAndPullsTheOthersIntoTheirRanges) {
    // The initial second angle, the end of the drag, and the result, for a drag that starts at 100 in an area of 400.
    const std::array<float, 3> cases[] = {{0, 100, 0},   {0, 300, 4},  {0.5F, 300, 4}, {0, 150, 1},
                                          {0, -900, -4}, {-1, 200, 1}, {2, 0, 0}};
    for (const auto& [startDeg, x, expectedDeg] : cases) {
        RegistrationState state = stateAt({0, 0, 0});
        state.setValues(5.5F, startDeg, -3.5F);
        state.setDragAreaSize(400, 300);
        state.beginDrag(100, 50);
        state.drag(x / 3.0F);  // intermediate positions of the drag have no effect
        state.drag(x);
        EXPECT_THAT(state.values(), ElementsAre(4.0F, FloatNear(expectedDeg, 1e-6F), -3.0F)) << x;
    }
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
    EXPECT_EQ(poseText(poseOf({1, -2, 0.5}), false), "R [ 1.0000 -2.0000  0.5000] T [ 0.0250  0.0000 -0.5000]");
    EXPECT_EQ(poseText(poseOf({90, 0, 0}), true),
              "R [a= 90.0000 deg |  1.0000  0.0000  0.0000] T [ 0.0250  0.0000 -0.5000]");
    EXPECT_EQ(rotationVectorText({0.5, -1, 2}, 3.25), "[0.500000 -1.000000 2.000000 | 3.250000]");
    EXPECT_EQ(matrixText(Eigen::Matrix3d(Eigen::Vector3d(1, 2, 3).asDiagonal())),
              "1.000000 0.000000 0.000000\n0.000000 2.000000 0.000000\n0.000000 0.000000 3.000000\n");
    EXPECT_EQ(vectorText(Eigen::Vector2d(1, -2)), "1.000000 -2.000000 ");
    EXPECT_EQ(intrinsicsText({628, 468, 580.0F, 581.5F, 314.0F, 234.25F}),
              "fxfy = [580.000000 581.500000] cxcy=[314.000000 234.250000] k1k2k3=[0.000000 0.000000 0.000000] "
              "p1p2=[0.000000 0.000000]");
}

}  // namespace
}  // namespace vq::testing
