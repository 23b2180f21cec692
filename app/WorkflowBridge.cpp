#include "app/WorkflowBridge.h"

#include "app/GlobalManager.h"
#include "app/ImageViews.h"
#include "app/InterfaceTexts.h"
#include "app/QmlFunctions.h"
#include "engine/Rotation.h"

#include <array>

namespace fieldcal {
namespace {

/// Of the camera against where the stored rotation has it: about its own X, Y and Z axis.
std::array<double, 3> turnDeg(const Rotation& stored, const Rotation& estimated) {
    using Matrix = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;
    const Eigen::Matrix3d from = Eigen::Map<const Matrix>(stored.data()).cast<double>();
    const Eigen::Matrix3d to = Eigen::Map<const Matrix>(estimated.data()).cast<double>();
    // What moves points of the picture one way has turned the camera the other way.
    const Eigen::Vector3d angles = vq::anglesFromRotation(from * to.transpose()) * vq::kDegreesPerRadian;
    return {angles[0], angles[1], angles[2]};
}

}  // namespace

WorkflowBridge::WorkflowBridge(GlobalManager& manager, MainThreadCalls& mainThread, QmlFunctions& functions,
                               ImageViews& views)
    : manager_(manager), mainThread_(mainThread), functions_(functions), views_(views) {}

void WorkflowBridge::requestRender() {
    if (pacer_.request()) emit manager_.signal_tellAppToRenderImages();
}

void WorkflowBridge::stateChanged(State state) {
    // A last step of the demonstration may have come after the user's restart.
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

void WorkflowBridge::solutionFound(ColourCamera camera, const CameraParameters& factory, const Rotation& estimated) {
    views_.setCalibration(camera, factory, estimated);
    const CameraExtrinsics& stored =
        camera == ColourCamera::OutOfModule ? factory.depthToOutOfModule : factory.depthToInModule;
    const std::array<double, 3> turn = turnDeg(stored.rotation, estimated);
    functions_.showFoundTurn({turn[0], turn[1], turn[2]});
}

void WorkflowBridge::singleCameraOnly() {
    platformCamera_ = false;
    functions_.forceSingleCameraCalibration();
}

void WorkflowBridge::lastSaveFailed(const SaveNote& note) {
    qInfo("The last calibration was not stored: %s %s", qUtf8Printable(note.reason), qUtf8Printable(note.flash));
    functions_.showLastSaveFailed(interfaceText(texts::kLastSaveFailed));
}

void WorkflowBridge::deviceError(const QString& text) {
    mainThread_.call([this, text] { manager_.slot_getKXAPIErrorAndQuit(text); });
}

void WorkflowBridge::missingModule() {
    mainThread_.call([this] { manager_.slot_reportMissingQ550Device(); });
}

void WorkflowBridge::missingPlatformCamera() {
    mainThread_.call([this] { manager_.slot_reportMissingPlatformCamera(); });
}

void WorkflowBridge::platformCameraIssue() {
    mainThread_.call([this] { manager_.slot_reportPlatformCameraIssue(); });
}

void WorkflowBridge::movementText(const std::string& text) {
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

void WorkflowBridge::pairPictures(const ImageFrame16& /*infrared*/, const ImageFrame32& colour) {
    functions_.showCapturedPhoto(photos_.add(colour));
}

void WorkflowBridge::detailGathered(const std::vector<double>& areas) {
    functions_.showDetailMap(QVariantList(areas.begin(), areas.end()));
}

void WorkflowBridge::offerHowToMove() {
    functions_.showHowToMoveTutorialButton();
}

}  // namespace fieldcal
