#include "tests/views/ViewsStage.h"

#include <gmock/gmock.h>

namespace fieldcal::testing {
namespace {

class ActionsTest : public ::testing::Test {
protected:
    ActionsTest() {
        stage.resize({1280, 800});
        stage.window()->requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(stage.window()));
    }
    void pressReturn() { QTest::keyClick(stage.window(), Qt::Key_Return); }
    bool shown(const char* name) const { return stage.find(name)->isVisible(); }
    void takePhoto() { stage.tell("flashCalibrationImageViews"); }

    ViewsStage stage;
    QSignalSpy states{stage.window(), SIGNAL(stateChanged(int))};
    QSignalSpy exits{stage.window(), SIGNAL(userAskedToExit())};
    QSignalSpy quits{stage.window(), SIGNAL(quit())};
    QSignalSpy swings{stage.window(), SIGNAL(toggleTutorialAnimation(bool))};
    QSignalSpy rearCamera{stage.window(), SIGNAL(switchToOOMColorSensor())};
};

TEST_F(ActionsTest, ContinueIsHiddenUntilItIsLit) {
    stage.enter(2);
    stage.tell("toggleLightingContinueButtonVisibility", false, "Continue");
    pressReturn();
    EXPECT_FALSE(shown("lightingContinueButton"));
    EXPECT_EQ(states.size(), 0);
    stage.tell("toggleLightingContinueButtonVisibility", true, "Continue");
    EXPECT_TRUE(shown("lightingContinueButton"));
    pressReturn();
    ASSERT_EQ(states.size(), 1);
    EXPECT_EQ(states[0][0], 6);
    EXPECT_TRUE(shown("capturePage"));
}

TEST_F(ActionsTest, LeavingAsksOnlyWhenSomethingWouldBeLost) {
    for (const int state : {0, 1, 2, 5, 7}) {
        stage.enter(state);
        stage.press("exitButton");
        EXPECT_FALSE(shown("leaveQuestion")) << state;
    }
    EXPECT_EQ(exits.size(), 5);
    takePhoto();
    stage.press("exitButton");
    EXPECT_TRUE(shown("leaveQuestion"));
    pressReturn();  // stays in the program
    EXPECT_FALSE(shown("leaveQuestion"));
    EXPECT_EQ(exits.size(), 5);
    stage.press("exitButton");
    stage.press("leaveButton");
    EXPECT_EQ(exits.size(), 6);

    stage.press("stayButton");
    stage.press("captureRestartButton");
    stage.press("restartConfirmButton");  // discards the photos
    stage.press("exitButton");
    EXPECT_EQ(exits.size(), 7);
    stage.enter(9);
    stage.press("exitButton");
    EXPECT_TRUE(shown("leaveQuestion"));
    EXPECT_EQ(exits.size(), 7);
}

TEST_F(ActionsTest, ARestartAsksBeforeItDiscardsPhotos) {
    stage.enter(7);
    stage.press("captureRestartButton");
    ASSERT_EQ(states.size(), 1) << "there is nothing to lose";
    EXPECT_EQ(states[0][0], 3);
    stage.enter(7);
    takePhoto();
    stage.press("captureRestartButton");
    EXPECT_TRUE(shown("restartQuestion"));
    pressReturn();  // stays in the program
    EXPECT_FALSE(shown("restartQuestion"));
    stage.press("captureRestartButton");
    stage.enter(5);
    EXPECT_FALSE(shown("restartQuestion")) << "the attempt failed meanwhile";
    stage.enter(10);
    stage.press("foundContinueButton");
    stage.press("refinementRestartButton");
    QTest::keyClick(stage.window(), Qt::Key_Escape);
    EXPECT_FALSE(shown("restartQuestion"));
    EXPECT_EQ(states.size(), 1);
    stage.press("refinementRestartButton");
    stage.press("restartConfirmButton");
    ASSERT_EQ(states.size(), 2);
    EXPECT_EQ(states[1][0], 3);
    EXPECT_FALSE(shown("restartQuestion"));
}

TEST_F(ActionsTest, TheCaptureIsPausedBehindEverythingThatCoversIt) {
    QSignalSpy pauses(stage.window(), SIGNAL(pauseCapture(bool)));
    const auto last = [&] { return pauses.isEmpty() ? QVariant() : pauses.last()[0]; };
    stage.enter(7);
    takePhoto();
    EXPECT_EQ(last(), QVariant());
    const std::pair<const char*, const char*> covers[] = {{"captureHowToMoveButton", "howToMoveCloseButton"},
                                                          {"captureRestartButton", "restartStayButton"},
                                                          {"exitButton", "stayButton"}};
    for (const auto& [open, close] : covers) {
        stage.press(open);
        EXPECT_EQ(last(), true) << open;
        EXPECT_EQ(stage.find("movementText")->property("wanted"), "Paused. No photos are taken.");
        stage.press(close);
        EXPECT_EQ(last(), false) << close;
    }
    stage.tell("displayPlatformCameraIssue");
    EXPECT_EQ(last(), true);

    ViewsStage another;
    QSignalSpy decision(another.window(), SIGNAL(pauseCapture(bool)));
    another.tell("forceSingleCameraCalibration");
    another.enter(10);
    another.press("refinementContinueButton");
    ASSERT_EQ(decision.size(), 1) << "from the decision on, not from when it is carried out";
    EXPECT_EQ(decision[0][0], true);
}

TEST_F(ActionsTest, TheLightNoticeWaitsForLastingDarknessAndForLastingLight) {
    const auto comesAndGoes = [this](const char* atFirst, const char* then) {
        for (int i = 0; i < 12; ++i) {
            stage.tell(i % 2 == 0 ? atFirst : then);
            QTest::qWait(50);
        }
    };
    const char* const dark = "showReturnToAWellLitAreaPopup";
    const char* const lit = "hideReturnToAWellLitAreaPopup";
    stage.enter(7);
    comesAndGoes(dark, lit);
    EXPECT_FALSE(shown("returnToLightPopup"));
    QElapsedTimer timer;
    timer.start();
    stage.tell(dark);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown("returnToLightPopup"); }));
    EXPECT_GE(timer.elapsed(), 290);
    comesAndGoes(lit, dark);
    EXPECT_TRUE(shown("returnToLightPopup"));
    timer.start();
    stage.tell(lit);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !shown("returnToLightPopup"); }));
    EXPECT_GE(timer.elapsed(), 490);
}

TEST_F(ActionsTest, AWindowThatIsClosedAsksOnce) {
    stage.enter(7);
    takePhoto();
    EXPECT_FALSE(stage.window()->close());
    EXPECT_TRUE(shown("leaveQuestion"));
    pressReturn();  // stays, and the question is asked again the next time
    EXPECT_FALSE(stage.window()->close());
    EXPECT_TRUE(shown("leaveQuestion"));
    EXPECT_TRUE(stage.window()->close());
}

TEST_F(ActionsTest, WhateverBecomesOfTheSecondCameraTheFirstCanBeStoredAlone) {
    stage.enter(10);
    stage.press("foundContinueButton");
    stage.press("exitButton");
    EXPECT_FALSE(shown("storeFirstCameraButton")) << "the first one is not accepted yet";
    stage.press("stayButton");
    stage.press("refinementContinueButton");
    for (const int state : {7, 10}) {
        stage.enter(state);
        stage.press("exitButton");
        EXPECT_TRUE(shown("storeFirstCameraButton")) << state;
        stage.enter(10);
        EXPECT_TRUE(shown("storeFirstCameraButton")) << "the loop takes nothing from under the finger";
        stage.press("stayButton");
    }
    const std::pair<const char*, const char*> notices[] = {
        {"displayPlatformCameraIssue", "platformCameraIssuePage"},
        {"displayMissingPlatformCamera", "missingPlatformCameraPage"},
        {"displayMissingQ550Device", "missingDevicePage"}};
    for (const auto& [function, page] : notices) {
        stage.press("exitButton");
        stage.tell(function);
        EXPECT_FALSE(shown("leaveQuestion")) << "nothing lies on top of a notice";
        QMetaObject::invokeMethod(stage.find(page), "left");
        EXPECT_TRUE(shown("storeFirstCameraButton")) << page;
        stage.press("stayButton");
    }
    stage.tell("offerFirstCamera");
    EXPECT_FALSE(shown("stayButton")) << "there is nothing to stay for after an error";
    QTest::keyClick(stage.window(), Qt::Key_Escape);
    EXPECT_TRUE(shown("leaveQuestion"));
    EXPECT_TRUE(exits.isEmpty());
    QSignalSpy stores(stage.window(), SIGNAL(storeFirstCamera()));
    pressReturn();
    EXPECT_TRUE(shown("savingPage"));
    EXPECT_TRUE(stores.wait());
    stage.tell("cancelSaving");
    stage.tell("offerFirstCamera");
    EXPECT_TRUE(shown("leaveQuestion")) << "no save has begun";
    pressReturn();
    EXPECT_TRUE(stores.wait());
    EXPECT_TRUE(quits.isEmpty()) << "the second camera's rotation is not accepted by this";
}

TEST_F(ActionsTest, WhatWasFoundComesBeforeTheTutorialAndTheRefinement) {
    stage.tell("setCalibrationProgress", 0.0);
    stage.enter(8);
    EXPECT_TRUE(shown("capturePage")) << "what was found is not told yet";
    stage.enter(9);
    EXPECT_TRUE(shown("foundPage"));
    EXPECT_TRUE(swings.isEmpty());
    pressReturn();
    EXPECT_TRUE(shown("tutorialPage"));
    ASSERT_EQ(swings.size(), 1);
    EXPECT_EQ(swings[0][0], true);
    pressReturn();
    EXPECT_TRUE(shown("refinementPage"));
    ASSERT_EQ(swings.size(), 2);
    EXPECT_EQ(swings[1][0], false);

    pressReturn();  // accepts the first camera
    EXPECT_EQ(rearCamera.size(), 1);
    EXPECT_EQ(states.last()[0], 6);
    stage.tell("setCalibrationProgress", 0.0);
    stage.enter(10);
    EXPECT_TRUE(shown("foundPage"));
    pressReturn();
    EXPECT_TRUE(shown("refinementPage"));
    pressReturn();
    EXPECT_TRUE(shown("savingPage"));
    EXPECT_TRUE(quits.wait());
    EXPECT_EQ(quits.size(), 1);
}

TEST_F(ActionsTest, WhoKeepsTheStoredCalibrationAcceptsNothing) {
    QSignalSpy stores(stage.window(), SIGNAL(storeFirstCamera()));
    const auto findThatItFits = [this](int state) {
        stage.tell("setCalibrationProgress", 0.0);
        stage.tell("showFoundTurn", QVariantList{0, 0, 0}, QVariantMap{{"verdict", "fits"}});
        stage.enter(state);
    };
    findThatItFits(9);
    stage.press("keepStoredButton");
    EXPECT_EQ(rearCamera.size(), 1);
    EXPECT_EQ(states.last()[0], 6);
    stage.press("exitButton");
    EXPECT_FALSE(shown("storeFirstCameraButton")) << "there is nothing to store";
    stage.press("stayButton");
    findThatItFits(10);
    stage.press("keepStoredButton");
    EXPECT_EQ(exits.size(), 1);

    stage.tell("showFoundTurn", QVariantList{0, 0, 0}, QVariantMap{{"verdict", "turned"}});
    EXPECT_FALSE(shown("keepStoredButton"));
    EXPECT_TRUE(stores.isEmpty());
    EXPECT_TRUE(quits.isEmpty());
}

TEST_F(ActionsTest, WithOneCameraTheFirstRefinementIsTheLast) {
    stage.tell("forceSingleCameraCalibration");
    stage.enter(9);
    pressReturn();
    pressReturn();
    pressReturn();
    EXPECT_TRUE(quits.wait());
    EXPECT_TRUE(rearCamera.isEmpty());
}

TEST_F(ActionsTest, WhoHasCalibratedHereBeforeStoresTwoCamerasWithSixTouches) {
    int touches = 0;
    const auto touch = [&](const char* button) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return stage.find(button)->isVisible() && stage.find(button)->isEnabled(); }))
            << button;
        stage.press(button);
        ++touches;
    };
    stage.tell("showHistory", QVariantList{QVariantMap{{"stored", true}}}, "/reports");
    stage.enter(1);
    touch("historyButton");
    EXPECT_TRUE(shown("historyPage"));
    pressReturn();
    EXPECT_FALSE(shown("historyPage"));
    touches = 0;

    touch("introContinueButton");
    stage.tell("toggleLightingContinueButtonVisibility", true, "Continue");
    QTest::qWait(1500);
    stage.tell("toggleLightingContinueButtonVisibility", false, "Continue");
    QTest::qWait(2000);
    EXPECT_TRUE(shown("lightingPage")) << "the light did not last";
    stage.tell("toggleLightingContinueButtonVisibility", true, "Continue");
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown("capturePage"); }));
    stage.enter(9);
    touch("foundContinueButton");
    EXPECT_TRUE(shown("refinementPage")) << "without the example";
    EXPECT_EQ(states.last()[0], 10);
    EXPECT_TRUE(swings.isEmpty());
    touch("refinementContinueButton");
    touch("betweenContinueButton");
    stage.tell("setCalibrationProgress", 0.0);
    stage.enter(10);
    touch("foundContinueButton");
    touch("refinementContinueButton");
    EXPECT_TRUE(quits.wait());
    EXPECT_EQ(touches, 6);
}

TEST_F(ActionsTest, TheFingerDragsWhereThePictureIsTapsForNothingAndHoldsToCompare) {
    QSignalSpy downs(stage.window(), SIGNAL(touchDown(int, int)));
    QSignalSpy moves(stage.window(), SIGNAL(touchMove(int, int)));
    QSignalSpy ups(stage.window(), SIGNAL(touchUp(int, int)));
    const auto send = [this](QEvent::Type type, double x, double y) {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, {x, y}, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(stage.window(), &event);
    };
    stage.enter(10);
    stage.press("foundContinueButton");
    QCoreApplication::processEvents();
    send(QEvent::MouseButtonPress, 400, 400);
    send(QEvent::MouseMove, 411, 405);
    send(QEvent::MouseMove, 389, 395);
    send(QEvent::MouseButtonRelease, 400, 400);
    EXPECT_EQ(downs.size() + moves.size() + ups.size(), 0) << "a tap";
    send(QEvent::MouseButtonPress, 400.6, 400);
    send(QEvent::MouseMove, 400.6, 300);  // vertical movement only
    EXPECT_TRUE(moves.isEmpty());
    send(QEvent::MouseMove, 500.6, 300);
    send(QEvent::MouseMove, 405.6, 300);  // back to near the start, which a drag permits
    send(QEvent::MouseButtonRelease, 405.6, 300);
    ASSERT_EQ(downs.size(), 1);
    EXPECT_EQ(downs[0][0], 401);
    ASSERT_EQ(moves.size(), 2);
    EXPECT_EQ(moves[0][0], 501) << "rounded as the press is";
    EXPECT_EQ(moves[1][0], 406);
    EXPECT_EQ(ups.size(), 1);

    const auto* overlay = stage.window()->findChild<DepthColorOverlayRenderer*>("refinementView");
    const QQuickItem* button = stage.find("storedButton");
    const QPoint middle = button->mapToScene({button->width() / 2, button->height() / 2}).toPoint();
    QTest::mousePress(stage.window(), Qt::LeftButton, {}, middle);
    EXPECT_TRUE(overlay->storedShown());
    QTest::mouseRelease(stage.window(), Qt::LeftButton, {}, middle);
    EXPECT_FALSE(overlay->storedShown());
    EXPECT_EQ(downs.size(), 1);
}

TEST_F(ActionsTest, TheComparisonIsPlayedOnceAndThePanelsFadeForIt) {
    const auto* overlay = stage.window()->findChild<DepthColorOverlayRenderer*>("refinementView");
    QSignalSpy comparisons(overlay, &DepthColorOverlayRenderer::storedShownChanged);
    const QQuickItem* button = stage.find("refinementContinueButton");
    const auto shows = [&](bool stored) {
        return QTest::qWaitFor(
            [&] { return overlay->storedShown() == stored && button->opacity() == (stored ? 0 : 1); });
    };
    stage.enter(10);
    QTest::qWait(1000);
    EXPECT_TRUE(comparisons.isEmpty()) << "the page is not shown yet";
    stage.press("foundContinueButton");
    EXPECT_TRUE(shows(true));
    EXPECT_TRUE(shows(false));
    QTest::qWait(1500);
    EXPECT_EQ(comparisons.size(), 2);
    const QRectF clear = overlay->clearArea();
    EXPECT_NEAR(clear.y(), 1 - clear.y() - clear.height(), 0.06) << "in the middle of the image";
    EXPECT_NEAR(clear.height(), 0.56, 0.03);

    ViewsStage another;
    another.resize({1280, 800});
    const auto* other = another.window()->findChild<DepthColorOverlayRenderer*>("refinementView");
    another.enter(10);
    another.press("foundContinueButton");
    QTest::mousePress(another.window(), Qt::LeftButton, {}, {400, 400});
    QTest::mouseMove(another.window(), {500, 400});
    EXPECT_TRUE(QTest::qWaitFor([&] { return another.find("refinementContinueButton")->opacity() == 0; }));
    QTest::mouseRelease(another.window(), Qt::LeftButton, {}, {500, 400});
    QTest::qWait(1500);
    EXPECT_FALSE(other->storedShown()) << "who drags has understood";
}

TEST_F(ActionsTest, TheSecondCameraTakesNoPhotoBeforeTheUserHasTurned) {
    QSignalSpy pauses(stage.window(), SIGNAL(pauseCapture(bool)));
    stage.enter(10);
    stage.press("foundContinueButton");
    QSignalSpy cues(stage.window(), SIGNAL(cueSounded(QString)));
    stage.press("refinementContinueButton");
    EXPECT_EQ(states.last()[0], 6);
    EXPECT_TRUE(cues.isEmpty()) << "nothing new has been found";
    stage.enter(7);
    EXPECT_TRUE(shown("betweenPage"));
    EXPECT_FALSE(shown("capturePage"));
    ASSERT_EQ(pauses.size(), 1);
    EXPECT_EQ(pauses[0][0], true);
    stage.press("exitButton");
    EXPECT_TRUE(shown("storeFirstCameraButton"));
    stage.press("stayButton");
    EXPECT_EQ(pauses.last()[0], true);
    pressReturn();
    EXPECT_TRUE(shown("capturePage"));
    EXPECT_EQ(pauses.last()[0], false);
}

TEST_F(ActionsTest, APhotoIsConfirmedBesideTheInstructionAndOneThatBroughtNothingSaysWhy) {
    const QQuickItem* confirmation = stage.find("photoConfirmation");
    const auto text = [&] { return confirmation->property("text").toString(); };
    stage.enter(7);
    stage.tell("setCalibrationProgress", 0.0);
    stage.tell("showMovementText", "Move.");
    takePhoto();
    EXPECT_TRUE(confirmation->isVisible());
    EXPECT_EQ(text(), "Photo 1 taken.");
    stage.tell("showPhotoWorth", "");
    EXPECT_EQ(text(), "Photo 1 taken.");
    takePhoto();
    stage.tell("showPhotoWorth", "detail");
    EXPECT_EQ(text(), "Photo 2 brought nothing: too little detail in it.");
    EXPECT_EQ(confirmation->property("drawing"), "nothing");
    QTest::qWait(2000);
    EXPECT_TRUE(confirmation->isVisible()) << "longer, because there is more to read";
    EXPECT_EQ(stage.find("movementText")->property("text"), "Move.");
    EXPECT_EQ(stage.find("movementText")->opacity(), 1) << "the instruction stays in view";
    const QVariantList areas{1, 1, 1, 0, 1, 1, 1, 0, 1, 1, 1, 0};
    EXPECT_FALSE(shown("mapLegend"));
    stage.tell("showDetailMap", QVariant(areas), "left");
    EXPECT_TRUE(shown("mapLegend"));
    EXPECT_TRUE(shown("lookArrow"));
    stage.tell("setHoldStill", true);
    EXPECT_FALSE(shown("lookArrow")) << "nobody is to turn now";
}

TEST_F(ActionsTest, EachEventHasItsSoundOnce) {
    QSignalSpy cues(stage.window(), SIGNAL(cueSounded(QString)));
    const auto heard = [&] {
        QStringList names;
        for (const auto& cue : cues)
            names += cue[0].toString();
        cues.clear();
        return names.join(' ');
    };
    stage.enter(7);
    takePhoto();
    EXPECT_EQ(heard(), "photo");
    for (int i = 0; i < 3; ++i)
        stage.tell("showReturnToAWellLitAreaPopup");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown("returnToLightPopup"); }));
    EXPECT_EQ(heard(), "lightLost");
    stage.tell("showCalibrationStartupText", "Too simple.");
    EXPECT_EQ(heard(), "failed");
    stage.tell("showCalibrationStartupText", "");
    stage.enter(5);
    EXPECT_EQ(heard(), "");
    stage.tell("forceSingleCameraCalibration");
    stage.tell("showSaveCalibrationText", "Align.");
    stage.enter(10);
    EXPECT_EQ(heard(), "found");
    stage.press("foundContinueButton");
    stage.press("refinementContinueButton");
    EXPECT_EQ(heard(), "") << "nothing is stored yet";
    stage.tell("showSaveCalibrationText", "Stored.");
    EXPECT_EQ(heard(), "stored");
}

TEST_F(ActionsTest, AnUpdateIsFetchedGivenUpOrLeftForLater) {
    QSignalSpy wanted(stage.window(), SIGNAL(startDownloadingUpdate()));
    QSignalSpy givenUp(stage.window(), SIGNAL(abortDownloadingUpdate()));
    const auto escape = [this] { QTest::keyClick(stage.window(), Qt::Key_Escape); };
    stage.enter(1);
    stage.tell("showUpdateOffer", "1.10");
    EXPECT_TRUE(shown("updateNotice"));
    escape();  // postpones the update
    EXPECT_FALSE(shown("updateNotice"));
    const auto offer = [&] {
        const int before = wanted.size();
        stage.tell("showUpdateOffer", "1.10");
        pressReturn();
        EXPECT_EQ(wanted.size(), before) << "it was meant for the page below";
        ASSERT_TRUE(QTest::qWaitFor([this] { return stage.find("updateNotice")->isEnabled(); }));
        pressReturn();
    };
    offer();
    EXPECT_EQ(wanted.size(), 1);
    stage.tell("showUpdateProgress", 20.0, 80.0);
    EXPECT_EQ(stage.find("updateProgress")->property("value"), 0.25);
    pressReturn();  // has no effect: the user can only wait
    EXPECT_EQ(states.size(), 0) << "the page below is out of reach";
    escape();
    EXPECT_EQ(givenUp.size(), 1);
    EXPECT_FALSE(shown("updateNotice"));

    offer();
    stage.tell("showUpdateFailed", "Because.", true);
    pressReturn();  // tries again
    EXPECT_EQ(wanted.size(), 3);
    stage.tell("showUpdateStarting");
    escape();  // too late to cancel
    EXPECT_TRUE(shown("updateNotice"));
    EXPECT_EQ(givenUp.size(), 1);
    EXPECT_EQ(exits.size(), 0);
}

TEST_F(ActionsTest, WhoHasBegunIsNotInterruptedByAnOffer) {
    stage.enter(2);
    stage.tell("showUpdateOffer", "1.10");
    EXPECT_FALSE(shown("updateNotice"));
}

}  // namespace
}  // namespace fieldcal::testing
