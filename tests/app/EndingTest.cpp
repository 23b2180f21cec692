#include "engine/Rotation.h"
#include "session/RecordedSession.h"
#include "tests/app/ApplicationRig.h"

#include <QTest>

#include <cmath>
#include <cstdio>

namespace fieldcal::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr ColourCamera kFirst = ColourCamera::Third;
constexpr ColourCamera kSecond = ColourCamera::Platform;
constexpr const char* kSaved = "saveText|The calibration is stored in the camera.";

Eigen::Vector3d anglesDeg(const Rotation& rotation) {
    return vq::anglesFromRotation(vq::matrixOf(rotation)) * vq::kDegreesPerRadian;
}

class EndingTest : public ApplicationTest {
protected:
    CalibrationRecords& records() { return const_cast<CalibrationRecords&>(manager->workflow().records()); }

    void openCamera() { ASSERT_TRUE(waitFor("state|1")); }
    void findFirst() {
        press("switchToIMColorSensor");
        ASSERT_TRUE(solve("state|9"));
        QMetaObject::invokeMethod(manager->window(), "toggleTutorialAnimation", Q_ARG(bool, true));
    }
    /// Goes through the tutorial to the first camera's refinement.
    void refineFirst() {
        openCamera();
        findFirst();
        goTo(State::RefiningCalibration);
    }
    void drag(int fromX, int toX, int toY) {
        touch("touchDown", fromX, 10);
        touch("touchMove", toX, toY);
        touch("touchUp", toX, toY);
    }
    /// Leaves the program a pass or two after it has entered a state.
    void driveTo(State state) {
        if (state == State::FirstOpened) return;
        openCamera();
        if (state == State::RefiningTutorial || state == State::RefiningCalibration) findFirst();
        if (state != State::RefiningTutorial && state != State::ShowingIntroduction) goTo(state);
        QTest::qWait(30);
    }
    /// From the light check on, until before the end.
    static std::vector<bool> keepAwakeRequestsUpTo(State state) {
        return state < State::DetectingLighting ? std::vector<bool>() : std::vector<bool>{true, false};
    }
    static std::vector<State> statesToLeave() {
        return {State::FirstOpened,        State::ShowingIntroduction, State::DetectingLighting,
                State::WaitingToCalibrate, State::StartingCalibration, State::RefiningTutorial,
                State::RefiningCalibration};
    }
};

TEST_F(EndingTest, AnErrorInTheSecondCameraLeavesTheFirstToBeStoredAsItWasDragged) {
    start();
    refineFirst();
    const Eigen::Vector3d found = anglesDeg(*records().estimated(kFirst));
    const Rotation storedSecond = records().toStore(kSecond);
    const int width = 800;
    drag(100, 100 + width / 4, 500);
    press("switchToOOMColorSensor");
    const Eigen::Vector3d accepted = anglesDeg(*records().accepted(kFirst));
    EXPECT_NEAR(accepted[1] - found[1], 2.0, 1e-3) << "a quarter of the width";
    EXPECT_NEAR(accepted[0], found[0], 1e-3);
    EXPECT_NEAR(accepted[2], found[2], 1e-3);
    EXPECT_TRUE(waitFor("camera|Second Color Camera"));

    ASSERT_TRUE(solve("state|10")) << "the second camera goes without the tutorial";
    const qint64 milliseconds = runUntilEnd([this] {
        manager->bridge().deviceError("The camera is gone.");
        ASSERT_TRUE(waitFor("offerFirstCamera"));
        EXPECT_THAT(awake, ElementsAre(true)) << "the first camera may still be lost";
        manager->bridge().deviceError("Another one.");
        press("storeFirstCamera");
        EXPECT_EQ(calls().back(), kSaved);
        press("quit");
        press("userAskedToExit");
        QTest::mouseClick(manager->window(), Qt::LeftButton);
    });
    EXPECT_GE(milliseconds, 300) << "the user can read it";
    EXPECT_EQ(manager->window()->property("clicks"), 0) << "nothing can be pressed any more";
    EXPECT_EQ(manager->exitCode(), 1);
    EXPECT_THAT(boxes, ElementsAre("KXAPI ERROR: The camera is gone."));
    EXPECT_EQ(control.startType, 2U);
    EXPECT_THAT(awake, ElementsAre(true, false));

    start();
    openCamera();
    const Eigen::Vector3d stored = anglesDeg(records().toStore(kFirst));
    EXPECT_LT((stored - accepted).cwiseAbs().maxCoeff(), 1e-3);
    EXPECT_EQ(records().toStore(kSecond), storedSecond) << "nobody has accepted what was found";
}

TEST_F(EndingTest, NoSaveBeginsOnANearlyEmptyBatteryAndTheUserMayTryAgain) {
    start();
    refineFirst();
    power = PowerState{false, 14};
    press("quit");
    EXPECT_THAT(boxes, ElementsAre("Field Calibrator: The battery is almost empty.\nConnect the tablet to its charger. "
                                   "Then the calibration can be stored in the camera."));
    EXPECT_EQ(calls().back(), "cancelSaving");
    EXPECT_FALSE(QDir(dataFolder() + "/backups").exists());
    power->mains = true;
    runUntilEnd([this] { press("quit"); });
    EXPECT_THAT(calls(), Contains(kSaved));
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(manager->exitCode(), 0);
}

TEST_F(EndingTest, TheConfirmationSaysWhatWasReadBackAndStaysUntilItIsTouched) {
    start({}, [](ApplicationEnvironment& environment) { environment.savedShownFor = std::chrono::seconds(60); });
    refineFirst();
    const Eigen::Vector3d found = anglesDeg(*records().estimated(kFirst));
    const double turnDeg = (found - anglesDeg(records().factory(kFirst))).norm();
    QTimer later;
    later.setSingleShot(true);
    later.setInterval(1000);
    QObject::connect(&later, &QTimer::timeout, [&] {
        const bool opened = wasCalled("openHistory");
        QTest::mouseClick(manager->window(), Qt::LeftButton, {}, opened ? QPoint(400, 300) : QPoint(50, 25));
        EXPECT_TRUE(wasCalled("openHistory"));
        if (!opened) later.start();
    });
    const qint64 milliseconds = runUntilEnd([&] {
        press("quit");
        EXPECT_EQ(calls().back(), kSaved);
        QTest::mouseClick(manager->window(), Qt::LeftButton);  // a second tap on the button
        later.start();
    });
    EXPECT_GE(milliseconds, 2000) << "the first touch opens the history";
    EXPECT_LT(milliseconds, 20000);
    const std::vector<std::string> all = calls();
    const auto facts =
        std::find_if(all.begin(), all.end(), [](const std::string& call) { return call.rfind("storedFacts", 0) == 0; });
    ASSERT_NE(facts, all.end());
    double reportedDeg = 0;
    ASSERT_EQ(std::sscanf(facts->c_str(), "storedFacts|First Color Camera: read back, %lf", &reportedDeg), 1) << *facts;
    EXPECT_NEAR(reportedDeg, turnDeg, 0.02);
    EXPECT_THAT(all, Contains("history|true " + QString::number(turnDeg, 'f', 1).toStdString()));
}

TEST_F(EndingTest, AFailedSaveEndsQuietlyAndIsSaidAtTheNextStart) {
    start("commitCalibration:1:6");
    refineFirst();
    const LogCapture log;
    EXPECT_LT(runUntilEnd([this] { press("quit"); }), 1000);
    EXPECT_TRUE(LogCapture::has("Failed to store calibration information to flash."));
    EXPECT_TRUE(LogCapture::has("slot_saveAndQuit - cleaning up resources"));
    EXPECT_THAT(calls(), Not(Contains(kSaved)));
    EXPECT_THAT(boxes, IsEmpty());
    EXPECT_EQ(manager->exitCode(), 0);
    QFile history(dataFolder() + "/history.csv");
    ASSERT_TRUE(history.open(QIODevice::ReadOnly));
    EXPECT_EQ(history.readAll().count(",not stored: "), 1);

    start();
    ASSERT_TRUE(waitUntil([&] { return wasCalled("state|1"); }));
    EXPECT_THAT(calls(), Contains("lastSaveFailed|The last calibration was not stored in the camera.\nPlease calibrate "
                                  "again."));
}

TEST_F(EndingTest, AFailedSaveThatCannotBeNotedIsSaidAtOnce) {
    start();
    refineFirst();
    ASSERT_TRUE(QDir().mkpath(dataFolder() + "/save-note-700010.json")) << "a folder in the note's place";
    runUntilEnd([this] { press("quit"); });
    EXPECT_THAT(calls(), Not(Contains(kSaved)));
    EXPECT_THAT(boxes, ElementsAre("KXAPI ERROR: The last calibration was not stored in the camera.\nPlease calibrate "
                                   "again."));
    EXPECT_EQ(manager->exitCode(), 1);
}

TEST_F(EndingTest, EveryStateIsLeftWithinASecondAndWithoutAWrite) {
    for (const bool closedBySystem : {false, true}) {
        for (const State state : statesToLeave()) {
            start();
            driveTo(state);
            const auto leave = [&] { closedBySystem ? (void)manager->window()->close() : press("userAskedToExit"); };
            EXPECT_LT(runUntilEnd(leave), 1000) << static_cast<int>(state);
            EXPECT_EQ(manager->exitCode(), 0);
            EXPECT_EQ(awake, keepAwakeRequestsUpTo(state)) << static_cast<int>(state);
            QElapsedTimer timer;
            timer.start();
            manager.reset();
            EXPECT_LT(timer.elapsed(), 1000) << static_cast<int>(state);
            EXPECT_EQ(control.startType, 2U) << "the camera is handed back";
            EXPECT_THAT(boxes, IsEmpty());
        }
    }
    start("openDevice:1:hang");
    QTest::qWait(100);
    EXPECT_LT(runUntilEnd([this] { press("userAskedToExit"); }), 1000);

    // At the end of a session, this signal is the only notice that the program receives.
    for (const State state : statesToLeave()) {
        start();
        driveTo(state);
        QElapsedTimer timer;
        timer.start();
        QMetaObject::invokeMethod(manager.get(), "aboutToQuit", Qt::DirectConnection);
        EXPECT_LT(timer.elapsed(), 1000) << static_cast<int>(state);
        EXPECT_EQ(control.startType, 2U) << "the camera is handed back";
        EXPECT_EQ(awake, keepAwakeRequestsUpTo(state)) << static_cast<int>(state);
    }
    EXPECT_FALSE(QDir(dataFolder() + "/backups").exists());
}

TEST_F(EndingTest, AnErrorOfTheLibraryShowsOneBoxAndEndsWithOneInEveryState) {
    for (const State state : statesToLeave()) {
        start();
        driveTo(state);
        const auto failTwice = [this] {
            manager->bridge().deviceError("The camera is gone.");
            manager->bridge().deviceError("Another one.");
        };
        EXPECT_LT(runUntilEnd(failTwice), 2000) << static_cast<int>(state);
        EXPECT_THAT(boxes, ElementsAre("KXAPI ERROR: The camera is gone."));
        EXPECT_EQ(manager->exitCode(), 1);
        EXPECT_EQ(control.startType, 2U);
        EXPECT_EQ(awake, keepAwakeRequestsUpTo(state)) << static_cast<int>(state);
    }
    start("grab:40:7");
    runUntilEnd([] {});
    EXPECT_EQ(manager->exitCode(), 1);
    EXPECT_THAT(boxes, ElementsAre(::testing::EndsWith("any web browsers before proceeding.")));
}

TEST_F(EndingTest, AServiceThatIsNotRestoredIsAnErrorOnEitherWayOut) {
    for (const char* way : {"userAskedToExit", "quit"}) {
        control = FakeServiceControl();
        start();
        openCamera();
        control.fail("changeConfig", 2, 5);
        runUntilEnd([&] { press(way); });
        EXPECT_THAT(boxes, ElementsAre("KXAPI ERROR: 5: (ChangeServiceConfig) ==> text 5"));
        EXPECT_EQ(manager->exitCode(), 1);
    }
}

}  // namespace
}  // namespace fieldcal::testing
