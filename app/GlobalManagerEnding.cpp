// Both ways out, and the one that an error takes.
#include "app/GlobalManager.h"
#include "app/InterfaceTexts.h"

#include <QEvent>
#include <QQuickWindow>
#include <QTimer>

namespace fieldcal {
namespace {

constexpr const char* kErrorTitle = "KXAPI ERROR";

}  // namespace

void GlobalManager::slot_saveAndQuit() {
    if (!beginEnding()) return;
    endProcessing(Stop::ToSave);
    const LeaveReport report = workflow_.save();
    finishEnding("slot_saveAndQuit", report);
    if (!report.stored || exitCode_ != 0) {
        QCoreApplication::quit();
        return;
    }
    emit signal_saveCalibrationText(interfaceText(texts::kSaved));
    QTimer::singleShot(environment_.savedShownFor, this, &QCoreApplication::quit);
}

void GlobalManager::slot_userAskedToExit() {
    if (!beginEnding()) return;
    endProcessing(Stop::ToLeave);
    finishEnding("slot_userAskedToExit", workflow_.leave());
    QCoreApplication::quit();
}

void GlobalManager::slot_getKXAPIErrorAndQuit(const QString& message) {
    if (!beginEnding()) return;
    exitCode_ = 1;
    endProcessing(Stop::ToLeave);
    updates_.release();  // nothing may be installed while the message waits for its reader
    environment_.showCritical(kErrorTitle, message);
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
}

void GlobalManager::finishEnding(const char* who, const LeaveReport& report) {
    qInfo("%s - cleaning up resources", who);
    updates_.release();
    if (report.closingErrors.isEmpty()) return;
    exitCode_ = 1;
    environment_.showCritical(kErrorTitle, report.closingErrors.join('\n'));
}

bool GlobalManager::eventFilter(QObject* watched, QEvent* event) {
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
