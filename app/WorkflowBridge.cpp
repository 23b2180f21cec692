#include "app/WorkflowBridge.h"

#include "app/GlobalManager.h"
#include "app/ImageViews.h"
#include "app/InterfaceTexts.h"
#include "app/QmlFunctions.h"

#include <QLocale>

#include <array>

namespace fieldcal {
namespace {

constexpr const char* verdictName(StoredRotation verdict) {
    switch (verdict) {
        case StoredRotation::StillFits:
            return "fits";
        case StoredRotation::UnusuallyFar:
            return "far";
        default:
            return "turned";
    }
}

constexpr const char* lookName(Look look) {
    switch (look) {
        case Look::Left:
            return "left";
        case Look::Right:
            return "right";
        case Look::Up:
            return "up";
        case Look::Down:
            return "down";
        default:
            return "";
    }
}

constexpr const char* worthName(PhotoWorth worth) {
    switch (worth) {
        case PhotoWorth::TooLittleDetail:
            return "detail";
        case PhotoWorth::NothingNew:
            return "repeated";
        default:
            return "";
    }
}

/// Calls a slot of the manager on the main thread.
template <typename... Arguments>
void callSlot(GlobalManager& manager, const char* slot, Arguments... arguments) {
    if (!QMetaObject::invokeMethod(&manager, slot, arguments...)) qCritical("The application has no slot %s.", slot);
}

/// The quality of a solution in the form that `docs/interface-map.md` describes.
QVariantMap qualityMap(const FoundTurn& turn) {
    QVariantMap quality{{"verdict", verdictName(turn.verdict())}};
    if (!turn.quality) return quality;
    const std::array<double, 3>& deviation = turn.quality->deviationDeg;
    quality["deviationDeg"] = QVariantList(deviation.begin(), deviation.end());
    quality["explained"] = !turn.quality->model.departure();
    if (turn.quality->proof) {
        quality["storedPx"] = turn.quality->proof->storedPx;
        quality["newPx"] = turn.quality->proof->newPx;
    }
    return quality;
}

}  // namespace

void WorkflowBridge::requestRender() {
    if (pacer_.request()) emit manager_.signal_tellAppToRenderImages();
}

void WorkflowBridge::stateChanged(State state) {
    // A last step of the demonstration may have arrived after the user's restart.
    if (state == State::WaitingToCalibrate) views_.stopTutorial();
    emit manager_.signal_modifyUiToState(state);
}

void WorkflowBridge::framesReady(State state, ColourCamera camera, const FrameRecords& frames) {
    views_.setFrames(state, camera, frames);
    requestRender();
}

void WorkflowBridge::lightMeasured(const LightGate::Reading& reading) {
    functions_.setLightingProgress(reading.progress);
    functions_.toggleLightingContinueButtonVisibility(reading.lit, interfaceText(texts::kContinue));
    functions_.setLightingDialogText(interfaceText(reading.lit ? texts::kLitTitle : texts::kDarkTitle),
                                     interfaceText(reading.lit ? texts::kLit : texts::kDark));
}

void WorkflowBridge::refining(State state) {
    if (state == State::RefiningTutorial) {
        if (!tutorialAnimation_) return;
        views_.swingTutorial();
    }
    requestRender();
    pacer_.wait();
}

void WorkflowBridge::solutionFound(ColourCamera camera, const CameraParameters& factory, const Rotation& estimated,
                                   const FoundTurn& turn) {
    views_.setCalibration(camera, factory, estimated);
    functions_.showFoundTurn(QVariantList(turn.anglesDeg.begin(), turn.anglesDeg.end()), qualityMap(turn));
}

void WorkflowBridge::singleCameraOnly() {
    platformCamera_ = false;
    functions_.forceSingleCameraCalibration();
}

void WorkflowBridge::lastSaveSettled(const LastSave& last) {
    const auto textOf = [](LastSave::Outcome outcome) {
        switch (outcome) {
            case LastSave::Outcome::Stored:
                return texts::kSaved;
            case LastSave::Outcome::Neither:
                return texts::kLastSaveGarbled;
            case LastSave::Outcome::NotStored:
                break;
        }
        return texts::kLastSaveFailed;
    };
    functions_.showLastSaveFailed(interfaceText(textOf(last.outcome)));
}

void WorkflowBridge::lastCalibration(const QDateTime& stored) {
    const QString date = QLocale().toString(stored.toLocalTime().date(), QLocale::ShortFormat);
    functions_.showLastCalibration(interfaceText(texts::kLastCalibrated).arg(date));
}

void WorkflowBridge::deviceError(const QString& text) {
    callSlot(manager_, "slot_getKXAPIErrorAndQuit", Q_ARG(QString, text));
}

void WorkflowBridge::missingModule() {
    callSlot(manager_, "slot_reportMissingQ550Device");
}

void WorkflowBridge::missingPlatformCamera() {
    callSlot(manager_, "slot_reportMissingPlatformCamera");
}

void WorkflowBridge::platformCameraIssue() {
    callSlot(manager_, "slot_reportPlatformCameraIssue");
}

void WorkflowBridge::movementText(const std::string& text, bool holdStill) {
    functions_.setHoldStill(holdStill);
    emit manager_.signal_displayMovementText(interfaceText(text.c_str()));
}

void WorkflowBridge::startText(const std::string& text) {
    emit manager_.signal_startCalibrationText(interfaceText(text.c_str()));
}

void WorkflowBridge::calibrationProgress(double progress) {
    functions_.setCalibrationProgress(progress);
}

void WorkflowBridge::returnToWellLitArea(bool needed) {
    if (needed) {
        functions_.showReturnToAWellLitAreaPopup();
    } else {
        functions_.hideReturnToAWellLitAreaPopup();
    }
}

void WorkflowBridge::pairCaptured() {
    functions_.flashCalibrationImageViews();
}

void WorkflowBridge::pairImages(const ImageFrame16& /*infrared*/, const ImageFrame32& colour) {
    functions_.showCapturedPhoto(photos_.add(colour));
}

void WorkflowBridge::detailGathered(const std::vector<double>& areas) {
    functions_.showDetailMap(QVariantList(areas.begin(), areas.end()), lookName(nextLook(areas)));
}

void WorkflowBridge::photoJudged(PhotoWorth worth) {
    functions_.showPhotoWorth(worthName(worth));
}

void WorkflowBridge::offerHowToMove() {
    functions_.showHowToMoveTutorialButton();
}

}  // namespace fieldcal
