#include "app/QmlFunctions.h"

#include <QGenericArgument>
#include <QMetaObject>

namespace fieldcal {

void QmlFunctions::setLeftToRightLanguage(bool leftToRight) {
    call("setLeftToRightLanguage", {leftToRight});
}

void QmlFunctions::modifyUiToStateInQML(State state) {
    call("modifyUiToStateInQML", {static_cast<int>(state)});
}

void QmlFunctions::setHoldStill(bool on) {
    call("setHoldStill", {on});
}

void QmlFunctions::showMovementText(const QString& text) {
    call("showMovementText", {text});
}

void QmlFunctions::showCalibrationStartupText(const QString& text) {
    call("showCalibrationStartupText", {text});
}

void QmlFunctions::showSaveCalibrationText(const QString& text) {
    call("showSaveCalibrationText", {text});
}

void QmlFunctions::setLightingDialogText(const QString& title, const QString& message) {
    call("setLightingDialogText", {title, message});
}

void QmlFunctions::setLightingProgress(double progress) {
    call("setLightingProgress", {progress});
}

void QmlFunctions::toggleLightingContinueButtonVisibility(bool visible, const QString& label) {
    call("toggleLightingContinueButtonVisibility", {visible, label});
}

void QmlFunctions::setCalibrationProgress(double progress) {
    call("setCalibrationProgress", {progress});
}

void QmlFunctions::setColorCameraDescriptionText(const QString& text) {
    call("setColorCameraDescriptionText", {text});
}

void QmlFunctions::showReturnToAWellLitAreaPopup() {
    call("showReturnToAWellLitAreaPopup");
}

void QmlFunctions::hideReturnToAWellLitAreaPopup() {
    call("hideReturnToAWellLitAreaPopup");
}

void QmlFunctions::flashCalibrationImageViews() {
    call("flashCalibrationImageViews");
}

void QmlFunctions::showHowToMoveTutorialButton() {
    call("showHowToMoveTutorialButton");
}

void QmlFunctions::forceSingleCameraCalibration() {
    call("forceSingleCameraCalibration");
}

void QmlFunctions::displayMissingQ550Device() {
    call("displayMissingQ550Device");
}

void QmlFunctions::displayMissingPlatformCamera() {
    call("displayMissingPlatformCamera");
}

void QmlFunctions::displayPlatformCameraIssue() {
    call("displayPlatformCameraIssue");
}

void QmlFunctions::offerFirstCamera() {
    call("offerFirstCamera");
}

void QmlFunctions::showLastCalibration(const QString& text) {
    call("showLastCalibration", {text});
}

void QmlFunctions::cancelSaving() {
    call("cancelSaving");
}

void QmlFunctions::showLastSaveFailed(const QString& text) {
    call("showLastSaveFailed", {text});
}

void QmlFunctions::showCapturedPhoto(const QString& source) {
    call("showCapturedPhoto", {source});
}

void QmlFunctions::showDetailMap(const QVariantList& areas, const QString& look) {
    call("showDetailMap", {QVariant(areas), look});
}

void QmlFunctions::showPhotoWorth(const QString& worth) {
    call("showPhotoWorth", {worth});
}

void QmlFunctions::showStoredFacts(const QStringList& facts) {
    call("showStoredFacts", {facts});
}

void QmlFunctions::showSoundSwitch(bool on) {
    call("showSoundSwitch", {on});
}

void QmlFunctions::showHistory(const QVariantList& entries, const QString& reportsFolder) {
    call("showHistory", {QVariant(entries), reportsFolder});
}

void QmlFunctions::openHistory() {
    call("openHistory");
}

void QmlFunctions::showFoundTurn(const QVariantList& anglesDeg, const QVariantMap& quality) {
    call("showFoundTurn", {QVariant(anglesDeg), quality});
}

void QmlFunctions::showUpdateOffer(const QString& version) {
    call("showUpdateOffer", {version});
}

void QmlFunctions::showUpdateProgress(qint64 receivedBytes, qint64 totalBytes) {
    call("showUpdateProgress", {static_cast<double>(receivedBytes), static_cast<double>(totalBytes)});
}

void QmlFunctions::showUpdateInterrupted() {
    call("showUpdateInterrupted");
}

void QmlFunctions::showUpdateStarting() {
    call("showUpdateStarting");
}

void QmlFunctions::showUpdateFailed(const QString& text, bool mayTryAgain) {
    call("showUpdateFailed", {text, mayTryAgain});
}

// The root belongs to the main thread and must not be accessed from another one.
void QmlFunctions::call(const char* function, const QVariantList& arguments) {
    QMetaObject::invokeMethod(this, "callNow", Q_ARG(QByteArray, function), Q_ARG(QVariantList, arguments));
}

void QmlFunctions::callNow(const QByteArray& function, const QVariantList& arguments) const {
    if (root_ == nullptr) return;
    const auto argument = [&](int i) {
        return i < arguments.size() ? Q_ARG(QVariant, arguments[i]) : QGenericArgument();
    };
    if (!QMetaObject::invokeMethod(root_, function.constData(), Qt::DirectConnection, argument(0), argument(1))) {
        qCritical("The interface has no function %s for %d arguments.", function.constData(), arguments.size());
    }
}

}  // namespace fieldcal
