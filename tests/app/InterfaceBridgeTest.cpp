#include "render/ImageItem.h"
#include "tests/app/ApplicationRig.h"

#include <QMetaMethod>

#include <thread>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsSupersetOf;

constexpr const char* kDark =
    "lighting|Sunlight Required|There is not enough sunlight.\nMove outside to a bright, sunlit area.";
constexpr const char* kLit = "lighting|Sufficient Sunlight|It's bright enough here!\nPress continue.";

class InterfaceBridgeTest : public ApplicationTest {
protected:
    /// One letter for each visible view, in the order of their names in the interface.
    std::string shownViews() const {
        std::string shown;
        const std::pair<const char*, char> views[] = {{"introImageView", 'i'},
                                                      {"calibColorView", 'c'},
                                                      {"calibInfraredView", 'r'},
                                                      {"refinementWalkthroughView", 'w'},
                                                      {"refinementView", 'f'}};
        for (const auto& [name, letter] : views) {
            const auto* view = manager->window()->findChild<ImageItem*>(name);
            if (view->paintEnabled() != 0 && view->drawFlag()) shown += letter;
        }
        return shown;
    }
};

TEST_F(InterfaceBridgeTest, EachStateOfTheUsersShowsItsViewsAndIsLogged) {
    start("openDevice:1:5");
    ASSERT_TRUE(waitFor("missingDevice"));
    const LogCapture log;
    const std::pair<State, const char*> table[] = {
        {State::ShowingIntroduction, "i"},  {State::DetectingLighting, "cr"},  {State::RefiningCalibration, "f"},
        {State::AskToSaveCalibration, "f"}, {State::ResetCalibration, "cr"},   {State::ProcessingFrame, "cr"},
        {State::ShowingIntroduction, "i"},  {State::WaitingToCalibrate, "cr"}, {State::StartingCalibration, "cr"},
    };
    for (const auto& [state, views] : table) {
        goTo(state);
        EXPECT_EQ(shownViews(), views) << static_cast<int>(state);
        EXPECT_EQ(manager->workflow().state(), state);
    }
    EXPECT_TRUE(LogCapture::has("changing to state 10 from state 2"));
    EXPECT_THAT(calls(), ::testing::Contains(kDark)) << "before any measurement";
    EXPECT_THAT(calls(), ::testing::Contains("startText|"));
    EXPECT_THAT(calls(), ::testing::Not(::testing::Contains(::testing::StartsWith("state|")))) << "no echo";

    emit manager->signal_modifyUiToState(State::RefiningTutorial);
    EXPECT_EQ(shownViews(), "w");
    emit manager->signal_modifyUiToState(State::RefiningCalibration);
    EXPECT_EQ(shownViews(), "f");
    press("switchToOOMColorSensor");
    EXPECT_EQ(shownViews(), "cr") << "the second camera has a picture";
}

TEST_F(InterfaceBridgeTest, LightAndCaptureAreToldAsTheyAreMeasured) {
    start("openDevice:1:5");
    ASSERT_TRUE(waitFor("missingDevice"));
    LightGate gate;
    const std::pair<int, std::vector<std::string>> table[] = {
        {8, {"light|0.000", "lightContinue|false|Continue", kDark}},   {130, {"light|0.938"}},
        {131, {"light|1.000", "lightContinue|true|Continue", kLit}},   {111, {}},
        {110, {"light|0.923", "lightContinue|false|Continue", kDark}},
    };
    for (const auto& [brightness, expected] : table) {
        manager->bridge().lightMeasured(gate.detect(static_cast<std::uint16_t>(brightness)));
        EXPECT_EQ(calls(), expected) << brightness;
        forget();
    }
    manager->bridge().returnToWellLitArea(true);
    goTo(State::ResetCalibration);
    EXPECT_THAT(calls(), IsSupersetOf({"popup|true", "popup|false"})) << "leaving the capture hides it";
}

TEST_F(InterfaceBridgeTest, WhatTheLoopTellsArrivesInItsOrder) {
    start("openDevice:1:5");
    ASSERT_TRUE(waitFor("missingDevice"));
    WorkflowBridge& bridge = manager->bridge();
    std::thread([&] {
        bridge.pairCaptured();
        bridge.calibrationProgress(0.9);
        bridge.startText("again");
        bridge.movementText("", false);
        bridge.offerHowToMove();
        bridge.stateChanged(State::WaitingToCalibrate);
        bridge.platformCameraIssue();
    }).join();
    EXPECT_THAT(calls(), ElementsAre()) << "nobody waits for the interface";
    ASSERT_TRUE(waitUntil([&] { return wasCalled("platformCameraIssue"); }));
    EXPECT_THAT(calls(), ElementsAre("flash", "progress|0.9", "startText|again", "movement|", "howToMove",
                                     "popup|false", "state|5", "platformCameraIssue"));

    std::thread([&] { bridge.deviceError("too late"); }).join();
    end();
    EXPECT_THAT(boxes, ElementsAre()) << "what is still in the queue is discarded with the program";
}

TEST_F(InterfaceBridgeTest, EachCameraSwitchNamesItsCamera) {
    const std::string align =
        "saveText|Align the colorful depth image with the color image.\nPress Continue to accept "
        "the calibration of the ";
    const std::string restart = " color camera. Or press Restart to start over.";
    start();
    ASSERT_TRUE(waitFor("state|1"));
    press("switchToIMColorSensor");
    EXPECT_THAT(calls(), ElementsAre("camera|First Color Camera", "progress|0.0", align + "first" + restart));
    forget();
    press("switchToOOMColorSensor");
    EXPECT_THAT(calls(), ElementsAre("camera|Second Color Camera", "progress|0.0", align + "second" + restart));
    EXPECT_EQ(manager->workflow().camera(), ColourCamera::Platform);

    start("platformCamera:1:0");
    ASSERT_TRUE(waitUntil([&] { return wasCalled("state|1"); }));
    EXPECT_TRUE(wasCalled("singleCamera"));
    forget();
    press("switchToIMColorSensor");
    EXPECT_THAT(calls(), ElementsAre("camera|Color Camera", "progress|0.0",
                                     "saveText|Align the colorful depth image with the color image.\nPress Continue to "
                                     "accept the calibration of the color camera. Or press Restart to start over."));
}

TEST_F(InterfaceBridgeTest, WhatIsMissingIsShownAndLeftAsUsual) {
    for (const auto& [faults, expected] : {std::pair{"openDevice:1:5", "missingDevice"},
                                           {"thirdCamera:1:0", "missingDevice"},
                                           {"openCamera:1:0", "missingPlatformCamera"},
                                           {"setFocus:1:1", "platformCameraIssue"}}) {
        start(faults);
        ASSERT_TRUE(waitUntil([&, text = expected] { return wasCalled(text); })) << faults;
        EXPECT_THAT(boxes, ElementsAre()) << faults;
        EXPECT_EQ(manager->workflow().state(), State::FirstOpened);
        EXPECT_LT(runUntilEnd([this] { press("userAskedToExit"); }), 1000);
        EXPECT_EQ(manager->exitCode(), 0);
    }
}

TEST_F(InterfaceBridgeTest, SoundsAreHeardUntilTheyAreSwitchedOffWhichIsRemembered) {
    const auto sound = [this](const char* cue) {
        QMetaObject::invokeMethod(manager->window(), "cueSounded", Q_ARG(QString, cue));
    };
    const auto switchSound = [this](bool on) {
        QMetaObject::invokeMethod(manager->window(), "soundSwitched", Q_ARG(bool, on));
    };
    start("openDevice:1:5");
    EXPECT_TRUE(wasCalled("soundSwitch|true"));
    for (const char* cue : {"photo", "lightLost", "found", "failed", "stored"})
        sound(cue);
    EXPECT_THAT(cues, ElementsAre(Cue::Photo, Cue::LightLost, Cue::Found, Cue::Failed, Cue::Stored));
    switchSound(false);
    sound("photo");
    EXPECT_EQ(cues.size(), 5U);

    start("openDevice:1:5");
    EXPECT_TRUE(wasCalled("soundSwitch|false"));
    sound("photo");
    EXPECT_THAT(cues, ElementsAre());
    switchSound(true);
    start("openDevice:1:5");
    EXPECT_TRUE(wasCalled("soundSwitch|true"));
}

TEST_F(InterfaceBridgeTest, AnArabicInterfaceReadsFromTheRightAndSpeaksArabic) {
    start("openDevice:1:5", [](ApplicationEnvironment& environment) {
        environment.language = {QString("Arabic"), QString("Egypt")};
    });
    EXPECT_EQ(calls().front(), "leftToRight|false");
    EXPECT_TRUE(QGuiApplication::isRightToLeft());
    EXPECT_EQ(QCoreApplication::translate("Interface", "Continue"), "متابعة");
}

/// The product's own interface provides every function that the recording one has, for as many arguments.
TEST_F(InterfaceBridgeTest, TheInterfaceHasEveryFunctionAndView) {
    const auto functions = [this] {
        std::vector<std::string> signatures;
        const QMetaObject* type = manager->window()->metaObject();
        for (int i = 0; i < type->methodCount(); ++i) {
            if (type->method(i).methodType() == QMetaMethod::Signal) continue;
            const std::string signature = type->method(i).methodSignature().toStdString();
            const bool isOfTheTest = signature.rfind("add(", 0) == 0 || signature.rfind("note(", 0) == 0;
            if (!isOfTheTest) signatures.push_back(signature);
        }
        return signatures;
    };
    start("openDevice:1:5");
    const std::vector<std::string> called = functions();
    EXPECT_THAT(called, IsSupersetOf({"setHoldStill(QVariant)", "showFoundTurn(QVariant,QVariant)"}));
    const LogCapture log;
    start("openDevice:1:5", [](ApplicationEnvironment& environment) {
        environment.rootDocument = ApplicationEnvironment().rootDocument;
    });
    EXPECT_THAT(functions(), IsSupersetOf(called));
    end();
    const auto isOfTheInterface = [](const std::string& line) {
        return line.find("interface has no") != std::string::npos || line.find("No such") != std::string::npos ||
               line.find("main.qml") != std::string::npos;
    };
    EXPECT_EQ(std::count_if(LogCapture::lines().begin(), LogCapture::lines().end(), isOfTheInterface), 0)
        << ::testing::PrintToString(LogCapture::lines());
}

}  // namespace
}  // namespace fieldcal::testing
