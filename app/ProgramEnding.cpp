#include "app/ProgramEnding.h"

#include "app/HistoryRows.h"
#include "app/InterfaceTexts.h"
#include "app/ShutdownBlock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTouchEvent>

#include <array>
#include <cmath>
#include <utility>

namespace fieldcal {
namespace {

constexpr int kHistoryShownTimes = 6;  ///< as long as the confirmation, unless it is closed
constexpr const char* kErrorTitle = "KXAPI ERROR";
constexpr const char* kSavingText = "Storing the calibration in the camera…";  // of the page shown meanwhile

/// The position of a touch in the window, if the event has one.
std::optional<QPointF> positionOf(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) return static_cast<const QMouseEvent&>(event).localPos();
    if (event.type() != QEvent::TouchBegin) return std::nullopt;
    const QList<QTouchEvent::TouchPoint>& points = static_cast<const QTouchEvent&>(event).touchPoints();
    return points.isEmpty() ? std::nullopt : std::optional<QPointF>(points.first().pos());
}

}  // namespace

void ProgramEnding::setUp(QQuickWindow* window, std::unique_ptr<ProcessingThread> thread) {
    window_ = window;
    thread_ = std::move(thread);
}

void ProgramEnding::saveAndQuit(Storing storing) {
    if (begun_ || !hasPowerToSave() || !begin()) return;
    const ShutdownBlock block(window_, QCoreApplication::translate("SavingScreen", kSavingText));
    endProcessing(Stop::ToSave);
    const LeaveReport report = parts_.workflow.save(storing);
    const bool quiet = finish("slot_saveAndQuit", report);
    if (!report.stored && !report.reported) {
        // Nothing on the disk will say so at the next start.
        exitCode_ = 1;
        parts_.environment.showCritical(kErrorTitle, interfaceText(texts::kLastSaveFailed));
    }
    if (!report.stored || !quiet) {
        QCoreApplication::quit();
        return;
    }
    showSaved();
}

void ProgramEnding::showSaved() {
    parts_.functions.showStoredFacts(storedFacts());
    showHistory(parts_.functions, parts_.environment.workflow.dataFolder);
    parts_.showSaveText(interfaceText(texts::kSaved));
    savedShown_.start();
    connect(&quitSoon_, &QTimer::timeout, &QCoreApplication::quit);
    quitSoon_.start(parts_.environment.savedShownFor);
}

/// Returns whether the power supply suffices for a save. If not, nothing has been done: the user is asked to connect
/// the charger and may try again.
bool ProgramEnding::hasPowerToSave() {
    if (sufficesToWrite(parts_.environment.power())) return true;
    qWarning("No save begins: the battery holds less than %d %% and is not being charged.", kMinBatteryPercent);
    parts_.environment.showCritical(texts::kProgramName, interfaceText(texts::kBatteryLow));
    parts_.functions.cancelSaving();
    if (failed_) parts_.functions.offerFirstCamera();
    return false;
}

/// One line for each stored camera. A save is confirmed only when the module has reported these rotations.
QStringList ProgramEnding::storedFacts() const {
    QStringList facts;
    const CalibrationRecords& records = parts_.workflow.records();
    for (const ColourCamera camera : kColourCameras) {
        const std::optional<Rotation> accepted = records.accepted(camera);
        if (!accepted) continue;
        const std::array<double, 3> turn = foundTurn(records.factory(camera), *accepted, {}).anglesDeg;
        const QString degrees = QLocale().toString(std::hypot(turn[0], turn[1], turn[2]), 'f', 2);
        const char* name = camera == ColourCamera::Platform        ? texts::kSecondCamera
                           : parts_.bridge.platformCameraPresent() ? texts::kFirstCamera
                                                                   : texts::kOnlyCamera;
        facts += interfaceText(texts::kStoredFact).arg(interfaceText(name), degrees);
    }
    return facts;
}

/// A second tap on the button that has stored the calibration does not count.
bool ProgramEnding::isTouchOnSaved(const QEvent& event) const {
    constexpr qint64 kSecondTapMs = 700;
    const bool touch = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::TouchBegin ||
                       event.type() == QEvent::KeyPress;
    return touch && savedShown_.isValid() && savedShown_.elapsed() > kSecondTapMs;
}

void ProgramEnding::touchSaved(const QEvent& event) {
    const std::optional<QPointF> position = positionOf(event);
    const auto* button = window_->findChild<QQuickItem*>("savedHistoryButton");
    const bool opens = !historyOpened_ && position && button != nullptr && button->isVisible() &&
                       button->contains(button->mapFromScene(*position));
    if (!opens) {
        QCoreApplication::quit();
        return;
    }
    historyOpened_ = true;
    parts_.functions.openHistory();
    if (const auto* page = window_->findChild<QQuickItem*>("historyPage")) {
        // The list can be scrolled, so the end comes when the page is closed.
        window_->removeEventFilter(this);
        connect(page, &QQuickItem::visibleChanged, this, &QCoreApplication::quit);
    }
    savedShown_.restart();
    quitSoon_.start(kHistoryShownTimes * parts_.environment.savedShownFor);
}

void ProgramEnding::leave() {
    if (!begin()) return;
    endProcessing(Stop::ToLeave);
    finish("slot_userAskedToExit", parts_.workflow.leave());
    QCoreApplication::quit();
}

void ProgramEnding::failWith(const QString& message) {
    if (begun_ || std::exchange(failed_, true)) return;
    exitCode_ = 1;
    const bool storable = parts_.workflow.records().anyAccepted();
    if (!storable) begin();
    endProcessing(storable ? Stop::ToSave : Stop::ToLeave);
    parts_.updates.release();  // an update must not be installed while the message is shown
    if (!storable) parts_.allowSleep();
    parts_.environment.showCritical(kErrorTitle, message);
    if (storable) {
        parts_.functions.offerFirstCamera();
        return;
    }
    parts_.workflow.leave();
    QCoreApplication::quit();
}

bool ProgramEnding::begin() {
    if (begun_) return false;
    begun_ = true;
    window_->installEventFilter(this);
    return true;
}

void ProgramEnding::endProcessing(Stop stop) {
    parts_.bridge.stopWaiting();
    if (thread_ == nullptr) return;
    thread_->stop(stop);
    thread_.reset();
}

void ProgramEnding::closeCamera() {
    begin();
    endProcessing(Stop::ToLeave);
    parts_.workflow.leave();
    parts_.updates.release();
    parts_.allowSleep();
}

bool ProgramEnding::finish(const char* who, const LeaveReport& report) {
    qInfo("%s - cleaning up resources", who);
    parts_.updates.release();
    parts_.allowSleep();
    if (report.closingErrors.isEmpty()) return true;
    exitCode_ = 1;
    parts_.environment.showCritical(kErrorTitle, report.closingErrors.join('\n'));
    return false;
}

bool ProgramEnding::eventFilter(QObject* watched, QEvent* event) {
    if (isTouchOnSaved(*event)) touchSaved(*event);
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
            return QObject::eventFilter(watched, event);
    }
}

}  // namespace fieldcal
