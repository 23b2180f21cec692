// The ways to end the program: saving, leaving, and an error.
#include "app/GlobalManager.h"
#include "app/InterfaceTexts.h"
#include "app/ShutdownBlock.h"

#include <QEvent>
#include <QLocale>
#include <QQuickWindow>
#include <QTimer>

#include <array>
#include <cmath>
#include <utility>

namespace fieldcal {
namespace {

constexpr const char* kErrorTitle = "KXAPI ERROR";
constexpr const char* kSavingText = "Storing the calibration in the camera…";  // of the page shown meanwhile

}  // namespace

void GlobalManager::slot_saveAndQuit() {
    saveAndQuit(Storing::WithRefinement);
}

void GlobalManager::slot_storeFirstCameraAndQuit() {
    saveAndQuit(Storing::OnlyAccepted);
}

void GlobalManager::saveAndQuit(Storing storing) {
    if (ending_ || !hasPowerToSave() || !beginEnding()) return;
    const ShutdownBlock block(window_, QCoreApplication::translate("SavingScreen", kSavingText));
    endProcessing(Stop::ToSave);
    const LeaveReport report = workflow_.save(storing);
    const bool quiet = finishEnding("slot_saveAndQuit", report);
    if (!report.stored && !report.reported) {
        // Nothing on the disk will say so at the next start.
        exitCode_ = 1;
        environment_.showCritical(kErrorTitle, interfaceText(texts::kLastSaveFailed));
    }
    if (!report.stored || !quiet) {
        QCoreApplication::quit();
        return;
    }
    showSaved();
}

void GlobalManager::showSaved() {
    functions_.showStoredFacts(storedFacts());
    emit signal_saveCalibrationText(interfaceText(texts::kSaved));
    savedShown_.start();
    QTimer::singleShot(environment_.savedShownFor, this, &QCoreApplication::quit);
}

/// Otherwise nothing has happened yet: the user is told, and may try again.
bool GlobalManager::hasPowerToSave() {
    if (sufficesToWrite(environment_.power())) return true;
    qWarning("No save begins: the battery holds less than %d %% and is not being charged.", kMinBatteryPercent);
    environment_.showCritical(texts::kProgramName, interfaceText(texts::kBatteryLow));
    functions_.cancelSaving();
    if (failed_) functions_.offerFirstCamera();
    return false;
}

/// One line for each stored camera. A save is confirmed only when the module has reported these rotations.
QStringList GlobalManager::storedFacts() const {
    QStringList facts;
    const CalibrationRecords& records = workflow_.records();
    for (const ColourCamera camera : kColourCameras) {
        const std::optional<Rotation> accepted = records.accepted(camera);
        if (!accepted) continue;
        const std::array<double, 3> turn = foundTurn(records.factory(camera), *accepted, {}).anglesDeg;
        const QString degrees = QLocale().toString(std::hypot(turn[0], turn[1], turn[2]), 'f', 2);
        const char* name = camera == ColourCamera::Platform  ? texts::kSecondCamera
                           : bridge_.platformCameraPresent() ? texts::kFirstCamera
                                                             : texts::kOnlyCamera;
        facts += interfaceText(texts::kStoredFact).arg(interfaceText(name), degrees);
    }
    return facts;
}

/// A second tap on the button that has stored the calibration does not count.
bool GlobalManager::isTouchOnSaved(const QEvent& event) const {
    constexpr qint64 kSecondTapMs = 700;
    const bool touch = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::TouchBegin ||
                       event.type() == QEvent::KeyPress;
    return touch && savedShown_.isValid() && savedShown_.elapsed() > kSecondTapMs;
}

void GlobalManager::slot_userAskedToExit() {
    if (!beginEnding()) return;
    endProcessing(Stop::ToLeave);
    finishEnding("slot_userAskedToExit", workflow_.leave());
    QCoreApplication::quit();
}

void GlobalManager::slot_getKXAPIErrorAndQuit(const QString& message) {
    if (ending_ || std::exchange(failed_, true)) return;
    exitCode_ = 1;
    const bool storable = workflow_.records().anyAccepted();
    if (!storable) beginEnding();
    endProcessing(storable ? Stop::ToSave : Stop::ToLeave);
    updates_.release();  // an update must not be installed while the message is shown
    if (!storable) stayAwake(false);
    environment_.showCritical(kErrorTitle, message);
    if (storable) {
        functions_.offerFirstCamera();
        return;
    }
    workflow_.leave();
    QCoreApplication::quit();
}

bool GlobalManager::beginEnding() {
    if (ending_) return false;
    ending_ = true;
    window_->installEventFilter(this);
    return true;
}

void GlobalManager::endProcessing(Stop stop) {
    bridge_.stopWaiting();
    if (thread_ == nullptr) return;
    thread_->stop(stop);
    thread_.reset();
}

void GlobalManager::closeCamera() {
    beginEnding();
    endProcessing(Stop::ToLeave);
    workflow_.leave();
    updates_.release();
    stayAwake(false);
}

bool GlobalManager::finishEnding(const char* who, const LeaveReport& report) {
    qInfo("%s - cleaning up resources", who);
    updates_.release();
    stayAwake(false);
    if (report.closingErrors.isEmpty()) return true;
    exitCode_ = 1;
    environment_.showCritical(kErrorTitle, report.closingErrors.join('\n'));
    return false;
}

bool GlobalManager::eventFilter(QObject* watched, QEvent* event) {
    if (isTouchOnSaved(*event)) QCoreApplication::quit();
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return true;
        default:
            return QApplication::eventFilter(watched, event);
    }
}

}  // namespace fieldcal
