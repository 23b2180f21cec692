#include "tests/views/ViewsStory.h"

#include "app/InterfaceTexts.h"
#include "workflow/CalibrationAttempt.h"

namespace fieldcal::testing {
namespace {

void takePhotos(ViewsStage& stage, int count) {
    for (int i = 0; i < count; ++i) {
        stage.tell("flashCalibrationImageViews");
        const QString folder = qEnvironmentVariable("STORY_PICTURES");
        const QString picture = QString("%1/%2_third.png").arg(folder).arg(i, 3, 10, QChar('0'));
        if (!folder.isEmpty()) stage.tell("showCapturedPhoto", QUrl::fromLocalFile(picture).toString());
        stage.tell("setCalibrationProgress", progressAfterPairs(i + 1));
    }
    for (int i = 0; i < count; ++i)
        stage.tell("showPhotoWorth", i == 1 ? "detail" : i == 2 ? "repeated" : "");
    const QVariantList areas{1, 0.8, 0.1, 0, 1, 1, 1, 0.4, 1, 1, 1, 1};
    stage.tell("showDetailMap", QVariant(areas), "left");
}

void showHistory(ViewsStage& stage) {
    const auto row = [](int serial, const char* camera, bool stored) {
        QVariantMap entry{{"when", "12/31/2026\n11:59 PM"},
                          {"camera", QString("%1\n%2").arg(serial).arg(interfaceText(camera))},
                          {"turnDeg", 1.92},
                          {"stored", stored}};
        if (stored) entry.insert({{"storedPx", 22.4}, {"newPx", 0.31}});
        return entry;
    };
    stage.tell("showHistory",
               QVariantList{row(700012, texts::kSecondCamera, true), row(700012, texts::kFirstCamera, true),
                            row(700010, texts::kFirstCamera, false), row(700011, texts::kFirstCamera, true)},
               "/home/technician/.local/share/field-calibrator/reports");
}

void hideHistory(ViewsStage& stage) {
    stage.tell("showHistory", QVariantList(), "");
}

void startAttempt(ViewsStage& stage) {
    stage.enter(7);
    stage.tell("setCalibrationProgress", 0.0);
}

void tellTurn(ViewsStage& stage, const char* verdict, const QVariantList& anglesDeg, const QVariantList& deviationDeg,
              double storedPx, double newPx) {
    stage.tell("showFoundTurn", anglesDeg,
               QVariantMap{{"verdict", verdict},
                           {"deviationDeg", deviationDeg},
                           {"explained", newPx < 1},
                           {"storedPx", storedPx},
                           {"newPx", newPx}});
}

void found(ViewsStage& stage) {
    stage.enter(8);
    tellTurn(stage, "turned", {0.42, -1.87, 0.05}, {0.004, 0.003, 0.006}, 22.4, 0.31);
}

std::vector<Scene> untilThereIsLight() {
    return {
        {"opening", [](ViewsStage&) {}},
        {"introduction",
         [](ViewsStage& stage) {
             stage.tell("showLastSaveFailed", interfaceText(texts::kLastSaveFailed));
             stage.tell("showLastCalibration", interfaceText(texts::kLastCalibrated).arg("12/31/2026"));
             showHistory(stage);
             stage.enter(1);
         }},
        {"history", [](ViewsStage& stage) { stage.press("historyButton"); }},
        {"update-offered",
         [](ViewsStage& stage) {
             stage.press("historyCloseButton");
             hideHistory(stage);
             stage.tell("showUpdateOffer", "1.10");
         }},
        {"update-connecting", [](ViewsStage& stage) { stage.press("updateButton"); }},
        {"update-fetching", [](ViewsStage& stage) { stage.tell("showUpdateProgress", 23.4e6, 61.8e6); }},
        {"update-interrupted", [](ViewsStage& stage) { stage.tell("showUpdateInterrupted"); }},
        {"update-starting", [](ViewsStage& stage) { stage.tell("showUpdateStarting"); }},
        {"update-unsigned",
         [](ViewsStage& stage) { stage.tell("showUpdateFailed", interfaceText(texts::kUpdateUnsigned), false); }},
        {"update-failed",
         [](ViewsStage& stage) { stage.tell("showUpdateFailed", interfaceText(texts::kUpdateNotTrusted), true); }},
        {"sunlight",
         [](ViewsStage& stage) {
             stage.press("updateCloseButton");
             stage.press("introContinueButton");
             stage.tell("setColorCameraDescriptionText", interfaceText(texts::kFirstCamera));
             stage.tell("setLightingDialogText", interfaceText(texts::kDarkTitle), interfaceText(texts::kDark));
             stage.tell("setLightingProgress", 0.55);
         }},
        {"sunlight-enough",
         [](ViewsStage& stage) {
             stage.tell("setLightingDialogText", interfaceText(texts::kLitTitle), interfaceText(texts::kLit));
             stage.tell("setLightingProgress", 1.0);
             stage.tell("toggleLightingContinueButtonVisibility", true, interfaceText(texts::kContinue));
         }},
        {"sunlight-goes-on", &showHistory},
    };
}

std::vector<Scene> captureByTheFirstCamera() {
    return {
        {"capture",
         [](ViewsStage& stage) {
             hideHistory(stage);
             stage.press("lightingContinueButton");
             startAttempt(stage);
             takePhotos(stage, 3);
             stage.tell("showMovementText", interfaceText("Move the device to capture a different calibration photo."));
         }},
        {"light-lost",
         [](ViewsStage& stage) {
             stage.tell("showReturnToAWellLitAreaPopup");
             (void)QTest::qWaitFor([&] { return stage.find("returnToLightPopup")->isVisible(); });
         }},
        {"leave-question",
         [](ViewsStage& stage) {
             stage.tell("hideReturnToAWellLitAreaPopup");
             stage.press("exitButton");
         }},
        {"restart-question",
         [](ViewsStage& stage) {
             stage.press("stayButton");
             stage.press("captureRestartButton");
         }},
        {"start-again",
         [](ViewsStage& stage) {
             stage.tell("showCalibrationStartupText",
                        interfaceText(
                            "Calibration isn't working because the scenery in these photos is too simple.\nLet's try "
                            "again. Point at interesting scenery like buildings or trees."));
             stage.tell("showHowToMoveTutorialButton");
             stage.enter(5);
         }},
        {"how-to-move", [](ViewsStage& stage) { stage.press("howToMoveButton"); }},
        {"how-to-move-turn", [](ViewsStage& stage) { stage.press("howToMoveNextButton"); }},
        {"how-to-move-pause", [](ViewsStage& stage) { stage.press("howToMoveNextButton"); }},
    };
}

std::vector<Scene> resultOfTheFirstCamera() {
    return {
        {"found",
         [](ViewsStage& stage) {
             stage.press("howToMoveNextButton");
             startAttempt(stage);
             takePhotos(stage, 4);
             found(stage);
             stage.enter(9);
         }},
        {"found-fits",
         [](ViewsStage& stage) {
             tellTurn(stage, "fits", {0.007, -0.004, 0.011}, {0.004, 0.003, 0.006}, 0.34, 0.31);
         }},
        {"found-far",
         [](ViewsStage& stage) {
             tellTurn(stage, "far", {1.42, -3.87, 10.05}, {0.014, 0.023, 0.016}, 102.4, 3.31);
         }},
        {"tutorial", [](ViewsStage& stage) { stage.press("foundContinueButton"); }},
        {"refinement",
         [](ViewsStage& stage) {
             stage.tell("showSaveCalibrationText", interfaceText(texts::kRefineFirst));
             stage.press("tutorialContinueButton");
         }},
    };
}

std::vector<Scene> secondCamera() {
    return {
        {"between",
         [](ViewsStage& stage) {
             stage.press("refinementContinueButton");
             stage.tell("setColorCameraDescriptionText", interfaceText(texts::kSecondCamera));
         }},
        {"capture-second",
         [](ViewsStage& stage) {
             stage.press("betweenContinueButton");
             startAttempt(stage);
             takePhotos(stage, 5);
             stage.tell("setHoldStill", true);
             stage.tell("showMovementText", interfaceText("Pause to capture a calibration photo."));
         }},
        {"leave-question-second", [](ViewsStage& stage) { stage.press("exitButton"); }},
        {"refinement-second",
         [](ViewsStage& stage) {
             stage.press("stayButton");
             stage.tell("showSaveCalibrationText", interfaceText(texts::kRefineSecond));
             found(stage);
             stage.enter(10);
             stage.press("foundContinueButton");
         }},
        {"saving", [](ViewsStage& stage) { stage.press("refinementContinueButton"); }},
        {"saved",
         [](ViewsStage& stage) {
             const auto fact = [](const char* camera, const char* degrees) {
                 return interfaceText(texts::kStoredFact).arg(interfaceText(camera), degrees);
             };
             stage.tell("showStoredFacts",
                        QStringList{fact(texts::kFirstCamera, "1.92"), fact(texts::kSecondCamera, "0.53")});
             showHistory(stage);
             stage.tell("showSaveCalibrationText", interfaceText(texts::kSaved));
         }},
    };
}

}  // namespace

std::vector<Scene> story() {
    std::vector<Scene> all;
    for (const auto& part : {untilThereIsLight(), captureByTheFirstCamera(), resultOfTheFirstCamera(), secondCamera()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

std::vector<Scene> endings() {
    return {
        {"opening-for-long", [](ViewsStage& stage) { stage.find("openingPage")->setProperty("waitedS", 60); }},
        {"missing-device", [](ViewsStage& stage) { stage.tell("displayMissingQ550Device"); }},
        {"missing-rear-camera", [](ViewsStage& stage) { stage.tell("displayMissingPlatformCamera"); }},
        {"rear-camera-trouble", [](ViewsStage& stage) { stage.tell("displayPlatformCameraIssue"); }},
    };
}

}  // namespace fieldcal::testing
