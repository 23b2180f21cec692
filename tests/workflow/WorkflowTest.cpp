#include "tests/workflow/WorkflowRig.h"

#include <QDir>

#include <thread>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr ColourCamera kFirst = ColourCamera::Third;
constexpr ColourCamera kSecond = ColourCamera::Platform;

double angleAboutYDeg(const Rotation& rotation) {
    return vq::anglesFromRotation(vq::matrixOf(rotation))[1] * vq::kDegreesPerRadian;
}

QByteArray read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

TEST_F(WorkflowTest, TwoCamerasFromTheFirstScreenToTheFlash) {
    const session::SessionDescription truth = describe(mountainRecording());
    BaselineMemory(folder.filePath("data")).remember(truth.module.serial, 0.055);
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    const QByteArray before = flash();
    workflow->requestState(State::DetectingLighting);
    ASSERT_TRUE(user->waitUntil([&] { return user->lit; }));
    solve();
    const Rotation firstEstimate = *workflow->records().estimated(kFirst);
    EXPECT_LT(degreesBetween(firstEstimate, *truth.truthThird), 0.05);
    EXPECT_NEAR(Eigen::Vector3d(user->found.anglesDeg.data()).norm(),
                degreesBetween(truth.third.rotation, *truth.truthThird), 0.05);
    ASSERT_TRUE(user->found.quality && user->found.quality->proof);
    EXPECT_TRUE(user->found.quality->proof->isClear());
    EXPECT_NEAR(workflow->engine().parallax().baselineM.value_or(0), 0.055, 1e-6) << "far mountains do not tell it";
    workflow->requestState(State::RefiningCalibration);
    ASSERT_TRUE(user->waitUntil([&] { return !user->dotted.empty(); })) << "depth is to reach further";
    dragBy(1.0F);

    // The restart is requested before the loop has seen the switch; it concerns the second camera nevertheless.
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
    EXPECT_LT(degreesBetween(secondEstimate, *truth.truthPlatform), 0.05);

    EXPECT_THAT(user->dotted, ElementsAre(State::RefiningCalibration)) << "dots would spoil what is matched";
    EXPECT_EQ(flash(), before) << "nothing is written before the save";
    const LeaveReport report = stopAndSave();
    EXPECT_TRUE(report.stored) << report.writeBack.reason.toStdString();
    EXPECT_THAT(report.errors, IsEmpty());
    EXPECT_EQ(control.startType, 2U);
    const QDir reports(folder.filePath("data/reports"));
    EXPECT_THAT(reports.entryList(QDir::Files), SizeIs(1));
    EXPECT_EQ(read(folder.filePath("data/history.csv")).count(",stored\n"), 2);
    const QByteArray page = read(reports.filePath(reports.entryList(QDir::Files).value(0)));
    EXPECT_TRUE(page.contains("firmware 1.27.11") && page.count("<section") == 2 && page.count("Moved by hand") == 1);

    EXPECT_NEAR(angleAboutYDeg(firstAccepted) - angleAboutYDeg(firstEstimate), 1.0, 1e-4);
    EXPECT_NEAR(degreesBetween(firstAccepted, firstEstimate), 1.0, 1e-3);
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    EXPECT_FALSE(user->lastSave);
    EXPECT_LT(degreesBetween(workflow->records().toStore(kFirst), firstAccepted), 1e-4);
    EXPECT_LT(degreesBetween(workflow->records().toStore(kSecond), secondEstimate), 1e-4);
}

TEST_F(WorkflowTest, LeavingKeepsTheFlashAndACameraThatFailsIsOpenedAnewToStoreTheFirstAlone) {
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    const QByteArray before = flash();
    solve();
    workflow->requestState(State::RefiningCalibration);
    dragBy(0.5F);
    thread->stop(Stop::ToLeave);
    workflow->leave();
    EXPECT_EQ(flash(), before);

    // The module fails while the second camera's rotation is shown. It is reopened for the save.
    start("grab:3000:7");
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    const Rotation factorySecond = workflow->records().toStore(kSecond);
    solve();
    workflow->requestState(State::RefiningCalibration);
    const Rotation estimate = *workflow->records().estimated(kFirst);
    workflow->switchCamera(kSecond);
    solve(State::RefiningCalibration);
    ASSERT_TRUE(user->waitUntil([&] { return !user->errors.empty(); }));
    const LeaveReport report = stopAndSave(Storing::OnlyAccepted);
    EXPECT_TRUE(report.stored) << report.writeBack.reason.toStdString();
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    EXPECT_EQ(workflow->records().toStore(kSecond), factorySecond);
    EXPECT_LT(degreesBetween(workflow->records().toStore(kFirst), estimate), 1e-4);
}

TEST_F(WorkflowTest, ADifferentModuleAtTheSaveIsNotWrittenAndTheFailureIsReported) {
    const QString other = folder.filePath("other");
    ASSERT_TRUE(QDir().mkpath(other));
    for (const QString& file : QDir(mountainRecording()).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(mountainRecording() + '/' + file, other + '/' + file));
    session::SessionDescription description = describe(other);
    ++description.module.serial;
    std::string why;
    ASSERT_TRUE(session::writeDescription(other.toStdString(), description, &why)) << why;

    start("grab:3000:7");
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    solve();
    workflow->requestState(State::RefiningCalibration);
    workflow->switchCamera(kSecond);
    ASSERT_TRUE(user->waitUntil([&] { return !user->errors.empty(); }));
    const QByteArray before = flash();
    set("KXSIM_SESSION", other);
    const LeaveReport report = stopAndSave(Storing::OnlyAccepted);
    EXPECT_FALSE(report.stored || report.reported);
    EXPECT_EQ(flash(), before);
}

TEST_F(WorkflowTest, ARestartDuringADecisionWins) {
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    int inThisAttempt = 0, restartFrom = 0;
    // Called by another thread while the loop decides; from the fourth pair on a solution is possible.
    user->onPair = [&] {
        if (++inThisAttempt < restartFrom) return;
        std::thread([&] { workflow->requestState(State::ResetCalibration); }).join();
    };
    bool beatASolution = false;
    for (int attempt = 0; attempt < 8 && !beatASolution; ++attempt) {
        inThisAttempt = 0;
        restartFrom = 4 + attempt % 3;
        workflow->requestState(State::StartingCalibration);
        ASSERT_TRUE(user->waitFor(State::WaitingToCalibrate));
        beatASolution = user->codes.back() == vq::GoodSolution;
    }
    EXPECT_TRUE(beatASolution) << "no attempt was solved while it was restarted, so that nothing was tested";
    EXPECT_THAT(user->states, ::testing::Not(::testing::Contains(State::FoundGoodSolution)));
    EXPECT_FALSE(workflow->records().estimated(kFirst));
}

TEST_F(WorkflowTest, NoPhotoIsTakenWhileTheCaptureIsPaused) {
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    workflow->pauseCapture(true);
    workflow->requestState(State::StartingCalibration);
    ASSERT_TRUE(user->waitFor(State::ProcessingFrame));
    const int until = user->frames + 300;
    ASSERT_TRUE(user->waitUntil([&] { return user->frames > until; }));
    EXPECT_EQ(user->events, "");
    workflow->pauseCapture(false);
    EXPECT_TRUE(user->waitUntil([&] { return user->events.find('P') != std::string::npos; }));
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
    EXPECT_EQ(report.errors, QStringList{"5: (ChangeServiceConfig) ==> text 5"})
        << "reported after everything is closed";
    EXPECT_THAT(user->states, ElementsAre(State::ShowingIntroduction));
}

TEST_F(WorkflowTest, LeavingACallThatHangsTakesLessThanASecond) {
    for (const char* hanging :
         {"openCamera:1:hang", "openDevice:1:hang", "thirdCamera:1:hang", "emitterControl:1:hang", "zIntrinsics:1:hang",
          "nonRectifiedIntrinsics:1:hang", "grab:9:hang", "leftImage:5:hang"}) {
        start(hanging);
        std::this_thread::sleep_for(std::chrono::milliseconds(150));
        const auto begin = std::chrono::steady_clock::now();
        thread->stop(Stop::ToLeave);
        workflow->leave();
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1)) << hanging;
        EXPECT_EQ(control.startType, 2U) << hanging;
        EXPECT_THAT(user->errors, IsEmpty()) << "leaving is no fault";
    }
}

}  // namespace
}  // namespace fieldcal::testing
