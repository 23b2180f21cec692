#include "engine/Rotation.h"
#include "session/RecordedSession.h"
#include "tests/workflow/WorkflowRig.h"

#include <thread>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr ColourCamera kFirst = ColourCamera::InModule;
constexpr ColourCamera kSecond = ColourCamera::OutOfModule;
using Matrix = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

Matrix matrixOf(const Rotation& rotation) {
    return Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(rotation.data()).cast<double>();
}

double degreesBetween(const Matrix& a, const Matrix& b) {
    const Matrix d = a * b.transpose();
    const Eigen::Vector3d axis(d(2, 1) - d(1, 2), d(0, 2) - d(2, 0), d(1, 0) - d(0, 1));
    return std::atan2(axis.norm() / 2, (d.trace() - 1) / 2) * vq::kDegreesPerRadian;
}

double angleAboutYDeg(const Rotation& rotation) {
    return vq::anglesFromRotation(matrixOf(rotation))[1] * vq::kDegreesPerRadian;
}

TEST_F(WorkflowTest, TwoCamerasFromTheFirstScreenToTheFlash) {
    session::SessionDescription truth;
    std::string why;
    ASSERT_TRUE(session::readDescription(mountainRecording().toStdString(), &truth, &why));

    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    const QByteArray before = flash();
    workflow->requestState(State::DetectingLighting);
    ASSERT_TRUE(user->waitUntil([&] { return user->lit; }));
    solve();
    const Rotation firstEstimate = *workflow->records().estimated(kFirst);
    EXPECT_LT(degreesBetween(matrixOf(firstEstimate), Eigen::Map<const Matrix>(truth.truthThird->data())), 0.05);
    workflow->requestState(State::RefiningCalibration);
    ASSERT_TRUE(user->waitUntil([&] { return !user->dotted.empty(); })) << "depth is to reach further";
    dragBy(1.0F);

    // The restart comes before the loop has seen the switch; it is about the second camera all the same.
    workflow->switchCamera(kSecond);
    workflow->requestState(State::ResetCalibration);
    ASSERT_TRUE(user->waitFor(State::WaitingToCalibrate));
    const Rotation firstAccepted = *workflow->records().accepted(kFirst);
    solve(State::RefiningCalibration);
    workflow->requestState(State::ResetCalibration);
    ASSERT_TRUE(user->waitFor(State::WaitingToCalibrate));
    EXPECT_FALSE(workflow->records().estimated(kSecond)) << "a restart forgets what was found";
    solve(State::RefiningCalibration);
    const Rotation secondEstimate = *workflow->records().estimated(kSecond);
    EXPECT_LT(degreesBetween(matrixOf(secondEstimate), Eigen::Map<const Matrix>(truth.truthPlatform->data())), 0.05);

    EXPECT_THAT(user->dotted, ElementsAre(State::RefiningCalibration)) << "dots would spoil what is matched";
    EXPECT_EQ(flash(), before) << "nothing is written before the save";
    const LeaveReport report = stopAndSave();
    EXPECT_TRUE(report.stored) << report.writeBack.reason.toStdString();
    EXPECT_THAT(report.errors, IsEmpty());
    EXPECT_EQ(control.startType, 2U);

    EXPECT_NEAR(angleAboutYDeg(firstAccepted) - angleAboutYDeg(firstEstimate), 1.0, 1e-4);
    EXPECT_NEAR(degreesBetween(matrixOf(firstAccepted), matrixOf(firstEstimate)), 1.0, 1e-3);
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    EXPECT_FALSE(user->lastSave);
    EXPECT_LT((matrixOf(workflow->records().toStore(kFirst)) - matrixOf(firstAccepted)).cwiseAbs().maxCoeff(), 1e-6);
    EXPECT_LT((matrixOf(workflow->records().toStore(kSecond)) - matrixOf(secondEstimate)).cwiseAbs().maxCoeff(), 1e-6);
}

TEST_F(WorkflowTest, LeavingKeepsTheFlashAndACameraThatWasNotAcceptedKeepsItsFactoryRotation) {
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    const QByteArray before = flash();
    solve();
    workflow->requestState(State::RefiningCalibration);
    dragBy(0.5F);
    thread->stop(Stop::ToLeave);
    workflow->leave();
    EXPECT_EQ(flash(), before);

    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    const Rotation factorySecond = workflow->records().toStore(kSecond);
    solve();
    workflow->requestState(State::RefiningCalibration);
    const Rotation estimate = *workflow->records().estimated(kFirst);
    workflow->switchCamera(kSecond);
    solve(State::RefiningCalibration);
    workflow->requestState(State::ResetCalibration);
    ASSERT_TRUE(user->waitFor(State::WaitingToCalibrate));
    EXPECT_TRUE(stopAndSave().stored);
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    EXPECT_EQ(workflow->records().toStore(kSecond), factorySecond);
    EXPECT_LT((matrixOf(workflow->records().toStore(kFirst)) - matrixOf(estimate)).cwiseAbs().maxCoeff(), 1e-6);
}

TEST_F(WorkflowTest, ARestartDuringADecisionWins) {
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    int inThisAttempt = 0;
    // Pressed by another thread while the loop decides; from the third pair on a solution may come.
    user->onPair = [&] {
        if (++inThisAttempt < 3) return;
        std::thread([&] { workflow->requestState(State::ResetCalibration); }).join();
    };
    bool beatASolution = false;
    for (int attempt = 0; attempt < 8 && !beatASolution; ++attempt) {
        inThisAttempt = 0;
        workflow->requestState(State::StartingCalibration);
        ASSERT_TRUE(user->waitFor(State::WaitingToCalibrate));
        beatASolution = user->codes.back() == vq::GoodSolution;
    }
    EXPECT_TRUE(beatASolution) << "no attempt solved with its third pair, so that nothing was tested";
    EXPECT_THAT(user->states, ::testing::Not(::testing::Contains(State::FoundGoodSolution)));
    EXPECT_FALSE(workflow->records().estimated(kFirst));
}

TEST_F(WorkflowTest, AFailedSaveIsNotedAndToldAtTheNextStart) {
    start("commitCalibration:1:6");
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    solve();
    workflow->requestState(State::RefiningCalibration);
    const LeaveReport report = stopAndSave();
    EXPECT_FALSE(report.stored);
    ASSERT_THAT(report.errors, SizeIs(1));
    EXPECT_TRUE(report.errors[0].endsWith(" - Something bad has happened with the Tarnex Deepvane camera."));
    EXPECT_THAT(user->errors, IsEmpty()) << "no message while leaving";

    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    ASSERT_TRUE(user->lastSave);
    EXPECT_EQ(user->lastSave->reason, report.errors[0]);
    EXPECT_EQ(user->lastSave->flash, "The camera's flash holds the previous calibration.");
    EXPECT_TRUE(QFile::exists(user->lastSave->backupFile));
    EXPECT_EQ(user->lastSave->serial, 700010U);
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    EXPECT_FALSE(user->lastSave) << "told once";
}

TEST_F(WorkflowTest, AFaultIsToldOnceAndEndsTheGrabbing) {
    start("grab:40:7");
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    workflow->requestState(State::DetectingLighting);
    ASSERT_TRUE(user->waitUntil([&] { return !user->errors.empty(); }));
    workflow->requestState(State::StartingCalibration);
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    control.fail("changeConfig", 2, 5);
    const LeaveReport report = stopAndSave();
    EXPECT_FALSE(report.stored);
    EXPECT_THAT(user->errors, ElementsAre(EndsWith("any web browsers before proceeding.")));
    EXPECT_EQ(report.errors, QStringList{"5: (ChangeServiceConfig) ==> text 5"}) << "told after everything is closed";
    EXPECT_THAT(user->states, ElementsAre(State::ShowingIntroduction));

    control = FakeServiceControl();
    for (const auto& [faults, told] : {std::pair{"openDevice:1:5", "missing module"},
                                       {"thirdCamera:1:0", "missing module"},
                                       {"openCamera:1:0", "missing platform camera"}}) {
        start(faults);
        ASSERT_TRUE(user->waitUntil([&] { return !user->errors.empty(); }));
        EXPECT_EQ(workflow->state(), State::FirstOpened);
        thread->stop(Stop::ToLeave);
        EXPECT_THAT(workflow->leave().errors, IsEmpty());
        EXPECT_THAT(user->errors, ElementsAre(told));
    }
}

TEST_F(WorkflowTest, LeavingTakesLessThanASecondFromEverywhere) {
    const auto leaveInTime = [this](const char* from) {
        const auto begin = std::chrono::steady_clock::now();
        thread->stop(Stop::ToLeave);
        workflow->leave();
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1)) << from;
        EXPECT_EQ(control.startType, 2U) << from;
    };
    for (const char* hanging :
         {"openCamera:1:hang", "openDevice:1:hang", "thirdCamera:1:hang", "emitterControl:1:hang", "zIntrinsics:1:hang",
          "nonRectifiedIntrinsics:1:hang", "grab:9:hang", "leftImage:5:hang"}) {
        start(hanging);
        std::this_thread::sleep_for(std::chrono::milliseconds(150));
        leaveInTime(hanging);
        EXPECT_THAT(user->errors, IsEmpty()) << "leaving is no fault";
    }
    start();
    leaveInTime("before the camera is open");
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    leaveInTime("introduction");
    for (const State state : {State::DetectingLighting, State::ResetCalibration, State::StartingCalibration}) {
        start();
        ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
        workflow->requestState(state);
        std::this_thread::sleep_for(std::chrono::milliseconds(120));
        leaveInTime("a working state");
    }
}

}  // namespace
}  // namespace fieldcal::testing
