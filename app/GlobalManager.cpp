#include "app/GlobalManager.h"

#include "app/HistoryRows.h"
#include "app/InterfaceTexts.h"
#include "app/OrientationLock.h"
#include "app/OwnCode.h"
#include "i18n/InterfaceLanguage.h"
#include "render/ColorImageRendererItem.h"
#include "render/DepthColorOverlayRenderer.h"
#include "render/InfraredImageRendererItem.h"

#include <QQuickWindow>

#include <utility>

// Resources in a static library are omitted unless they are referenced, which has to be done outside of any namespace.
static void initResources() {
    Q_INIT_RESOURCE(Pictures);
    Q_INIT_RESOURCE(Translations);
    Q_INIT_RESOURCE(Views);
}

namespace fieldcal {
namespace {

void registerTypes() {
    QMetaType::registerNormalizedTypedef("State", QMetaType::Int);
    constexpr const char* kModule = "ImageRenderTypes";
    qmlRegisterType<ColorImageRendererItem>(kModule, 1, 0, "ColorImageRendererItem");
    qmlRegisterType<InfraredImageRendererItem>(kModule, 1, 0, "InfraredImageRendererItem");
    qmlRegisterType<DepthColorOverlayRenderer>(kModule, 1, 0, "DepthColorOverlayRenderer");
}

}  // namespace

GlobalManager::GlobalManager(int& argc, char** argv, ApplicationEnvironment environment)
    : QApplication(argc, argv),
      environment_(std::move(environment)),
      workflow_(bridge_, environment_.workflow),
      updates_(environment_.update, updateBridge_),
      sounds_(environment_.workflow.dataFolder),
      ending_({environment_, functions_, bridge_, workflow_, updates_,
               [this](const QString& text) { emit signal_saveCalibrationText(text); }, [this] { stayAwake(false); }}) {
    initResources();
    loadUILanguage();
    lockOrientation();
    registerTypes();
    loadInterface();
    connectSignals();
    views_.switchIntroductionOn();
    updates_.start(this);
    ending_.setUp(window_, std::make_unique<ProcessingThread>(workflow_.loop()));
}

GlobalManager::~GlobalManager() {
    ending_.closeCamera();
    QCoreApplication::removePostedEvents(this);
}

void GlobalManager::loadUILanguage() {
    leftToRight_ = loadInterfaceLanguage(environment_.language, environment_.translations, &translator_);
    setLayoutDirection(leftToRight_ ? Qt::LeftToRight : Qt::RightToLeft);
}

void GlobalManager::loadInterface() {
    allowOnlyOwnModules(engine_);
    engine_.addImageProvider(PhotoProvider::name(), bridge_.makePhotoProvider());
    engine_.load(environment_.rootDocument);
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().value(0));
    if (window_ == nullptr) {
        qCritical(
            "Unable to get root window from QML engine. Something terrible has happened, as this should be "
            "impossible.");
        qCritical("The application will crash.");
    }
    functions_.setRoot(window_);
    functions_.setLeftToRightLanguage(leftToRight_);
    functions_.showSoundSwitch(sounds_.on());
    showHistory(functions_, environment_.workflow.dataFolder);
    views_.findIn(*window_);
    views_.setCalibrator(&workflow_.engine());
}

void GlobalManager::connectSignals() {
    connect(this, &GlobalManager::signal_tellAppToRenderImages, this, &GlobalManager::slot_tellAppToRenderImages);
    connect(this, &GlobalManager::signal_modifyUiToState, this, &GlobalManager::slot_modifyUiToState);
    connect(this, &GlobalManager::signal_displayMovementText, this, &GlobalManager::slot_displayMovementText);
    connect(this, &GlobalManager::signal_startCalibrationText, this, &GlobalManager::slot_startCalibrationText);
    connect(this, &GlobalManager::signal_saveCalibrationText, this, &GlobalManager::slot_saveCalibrationText);
    // At the end of a session the system kills the process right after announcing it, before any destructor runs.
    connect(this, &QCoreApplication::aboutToQuit, &ending_, &ProgramEnding::closeCamera);
    // Closing the window in any way leaves the program as its own button does.
    connect(this, &QGuiApplication::lastWindowClosed, this, &GlobalManager::slot_userAskedToExit);
    DepthColorOverlayRenderer* overlay = views_.refinementView();
    connect(window_, SIGNAL(toggleTutorialAnimation(bool)), this, SLOT(slot_toggleTutorialAnimation(bool)));
    connect(window_, SIGNAL(switchToOOMColorSensor()), this, SLOT(slot_switchToOOMColorSensor()));
    connect(window_, SIGNAL(switchToIMColorSensor()), this, SLOT(slot_switchToIMColorSensor()));
    connect(window_, SIGNAL(pauseCapture(bool)), this, SLOT(slot_pauseCapture(bool)));
    connect(window_, SIGNAL(cueSounded(QString)), this, SLOT(slot_cueSounded(QString)));
    connect(window_, SIGNAL(soundSwitched(bool)), this, SLOT(slot_soundSwitched(bool)));
    connect(window_, SIGNAL(userAskedToExit()), this, SLOT(slot_userAskedToExit()));
    connect(window_, SIGNAL(quit()), this, SLOT(slot_saveAndQuit()));
    connect(window_, SIGNAL(storeFirstCamera()), this, SLOT(slot_storeFirstCameraAndQuit()));
    connect(window_, SIGNAL(touchDown(int, int)), overlay, SLOT(slot_touchDown(int, int)));
    connect(window_, SIGNAL(touchMove(int, int)), overlay, SLOT(slot_touchMove(int, int)));
    connect(window_, SIGNAL(touchUp(int, int)), overlay, SLOT(slot_touchUp(int, int)));
    connect(window_, SIGNAL(stateChanged(int)), this, SLOT(slot_stateChanged(int)));
    connect(window_, SIGNAL(startDownloadingUpdate()), this, SLOT(slot_downloadLatestUpdate()));
    connect(window_, SIGNAL(abortDownloadingUpdate()), this, SLOT(slot_abortDownloadOfUpdate()));
}

void GlobalManager::slot_tellAppToRenderImages() {
    window_->update();
    bridge_.renderRequestArrived();
}

void GlobalManager::slot_modifyUiToState(State state) {
    qInfo("changing qml to state %d", static_cast<int>(state));
    // The loop also returns from the capture to the start page, and a queued message about that may arrive after the
    // user has restarted.
    const bool showsOther =
        state == State::WaitingToCalibrate || state == State::RefiningTutorial || state == State::RefiningCalibration;
    if (showsOther) views_.showFor(state);
    if (state != State::ProcessingFrame) functions_.hideReturnToAWellLitAreaPopup();
    functions_.modifyUiToStateInQML(state);
}

void GlobalManager::slot_stateChanged(int state) {
    if (ending_.hasBegun()) return;
    const State next = static_cast<State>(state);
    const State before = workflow_.state();
    views_.showFor(next);
    stayAwake(next != State::FirstOpened && next != State::ShowingIntroduction);
    if (next == State::DetectingLighting) {
        functions_.setLightingDialogText(interfaceText(texts::kDarkTitle), interfaceText(texts::kDark));
        lightingStopwatch_.restart();
    } else if (before == State::DetectingLighting) {
        qInfo("The user looked for light for %lld ms.", lightingStopwatch_.elapsed());
    }
    if (next == State::ResetCalibration) emit signal_startCalibrationText({});
    if (next != State::ProcessingFrame) functions_.hideReturnToAWellLitAreaPopup();
    qInfo("changing to state %d from state %d", state, static_cast<int>(before));
    workflow_.requestState(next);
}

void GlobalManager::stayAwake(bool on) {
    if (std::exchange(awake_, on) != on) environment_.keepAwake(on);
}

void GlobalManager::slot_displayMovementText(const QString& text) {
    functions_.showMovementText(text);
}

void GlobalManager::slot_startCalibrationText(const QString& text) {
    functions_.showCalibrationStartupText(text);
}

void GlobalManager::slot_saveCalibrationText(const QString& text) {
    functions_.showSaveCalibrationText(text);
}

void GlobalManager::slot_toggleTutorialAnimation(bool on) {
    bridge_.animateTutorial(on);
}

void GlobalManager::slot_pauseCapture(bool paused) {
    workflow_.pauseCapture(paused);
}

void GlobalManager::slot_cueSounded(const QString& cue) {
    const std::optional<Cue> known = cueNamed(cue);
    if (!known) qCritical("The interface has no sound for %s.", qUtf8Printable(cue));
    if (known && sounds_.on()) environment_.playCue(*known);
}

void GlobalManager::slot_soundSwitched(bool on) {
    sounds_.set(on);
}

void GlobalManager::slot_switchToIMColorSensor() {
    const bool two = bridge_.platformCameraPresent();
    switchCamera(ColourCamera::Third, two ? texts::kFirstCamera : texts::kOnlyCamera,
                 two ? texts::kRefineFirst : texts::kRefineOnly);
}

void GlobalManager::slot_switchToOOMColorSensor() {
    switchCamera(ColourCamera::Platform, texts::kSecondCamera, texts::kRefineSecond);
}

void GlobalManager::switchCamera(ColourCamera camera, const char* description, const char* instruction) {
    if (ending_.hasBegun()) return;
    workflow_.switchCamera(camera);
    // The page switches from the views of the refinement to those of the other camera.
    views_.showFor(State::WaitingToCalibrate);
    functions_.setColorCameraDescriptionText(interfaceText(description));
    functions_.setCalibrationProgress(0);
    emit signal_saveCalibrationText(interfaceText(instruction));
}

void GlobalManager::slot_userAskedToExit() {
    ending_.leave();
}

void GlobalManager::slot_saveAndQuit() {
    ending_.saveAndQuit(Storing::WithRefinement);
}

void GlobalManager::slot_storeFirstCameraAndQuit() {
    ending_.saveAndQuit(Storing::OnlyAccepted);
}

void GlobalManager::slot_getKXAPIErrorAndQuit(const QString& message) {
    ending_.failWith(message);
}

void GlobalManager::slot_reportMissingQ550Device() {
    functions_.displayMissingQ550Device();
}

void GlobalManager::slot_reportMissingPlatformCamera() {
    functions_.displayMissingPlatformCamera();
}

void GlobalManager::slot_reportPlatformCameraIssue() {
    functions_.displayPlatformCameraIssue();
}

void GlobalManager::slot_networkReplyLatestVersionJsonFinished(QNetworkReply* reply) {
    updates_.manifestReceived(reply);
}

void GlobalManager::slot_timeoutNetworkReplyJson() {
    updates_.timedOut();
}

void GlobalManager::slot_downloadLatestUpdate() {
    if (!ending_.hasBegun()) updates_.download();
}

void GlobalManager::slot_abortDownloadOfUpdate() {
    updates_.abort();
}

}  // namespace fieldcal
