#pragma once

#include "workflow/State.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace fieldcal {

/// The functions of the interface's root document, described in `docs/interface-map.md`. It lives on the main thread.
/// Any thread may call: there, a call is executed at once; from another thread it is queued without waiting, in one
/// order with the signals of that thread.
class QmlFunctions : public QObject {
    Q_OBJECT
public:
    /// To be called before any other function; main thread.
    void setRoot(QObject* root) { root_ = root; }

    void setLeftToRightLanguage(bool leftToRight);
    void modifyUiToStateInQML(State state);
    void showMovementText(const QString& text);
    void setHoldStill(bool on);
    void showCalibrationStartupText(const QString& text);
    void showSaveCalibrationText(const QString& text);
    void setLightingDialogText(const QString& title, const QString& message);
    void setLightingProgress(double progress);
    void toggleLightingContinueButtonVisibility(bool visible, const QString& label);
    void setCalibrationProgress(double progress);
    void setColorCameraDescriptionText(const QString& text);
    void showReturnToAWellLitAreaPopup();
    void hideReturnToAWellLitAreaPopup();
    void flashCalibrationImageViews();
    void showHowToMoveTutorialButton();
    void forceSingleCameraCalibration();
    void displayMissingQ550Device();
    void displayMissingPlatformCamera();
    void displayPlatformCameraIssue();
    void offerFirstCamera();
    void cancelSaving();
    void showLastSaveFailed(const QString& text);
    void showLastCalibration(const QString& text);
    void showCapturedPhoto(const QString& source);
    void showDetailMap(const QVariantList& areas, const QString& look);
    void showPhotoWorth(const QString& worth);
    void showStoredFacts(const QStringList& facts);
    void showSoundSwitch(bool on);
    void showHistory(const QVariantList& entries, const QString& reportsFolder);
    void openHistory();
    /// Rotation of the camera in degrees: upwards, to the right, and clockwise as seen from behind the camera.
    void showFoundTurn(const QVariantList& anglesDeg, const QVariantMap& quality);
    void showUpdateOffer(const QString& version);
    void showUpdateProgress(qint64 receivedBytes, qint64 totalBytes);
    void showUpdateInterrupted();
    void showUpdateStarting();
    void showUpdateFailed(const QString& text, bool mayTryAgain);

private:
    void call(const char* function, const QVariantList& arguments = {});
    Q_INVOKABLE void callNow(const QByteArray& function, const QVariantList& arguments) const;

    QPointer<QObject> root_;
};

}  // namespace fieldcal
