import QtQuick 2.15
import QtQuick.Window 2.15
import "theme"

// The interface's contract with the application, described in docs/interface-map.md. The screens define the appearance.
Window {
    id: root
    objectName: "root"
    width: Screen.width
    height: Screen.height
    visible: true
    visibility: Window.FullScreen
    property bool _q_has_border_in_fullscreen: true  // without it, Windows would show nothing above the program, not
                                                     // even a message box
    color: Theme.ground
    title: "Field Calibrator"

    readonly property int _state_FirstOpened: 0
    readonly property int _state_ShowingIntroduction: 1
    readonly property int _state_DetectingLighting: 2
    readonly property int _state_ResetCalibration: 3
    readonly property int _state_InitializingCalibration: 4
    readonly property int _state_WaitingToCalibrate: 5
    readonly property int _state_StartingCalibration: 6
    readonly property int _state_ProcessingFrame: 7
    readonly property int _state_FoundGoodSolution: 8
    readonly property int _state_RefiningTutorial: 9
    readonly property int _state_RefiningCalibration: 10
    readonly property int _state_AskToSaveCalibration: 11

    signal toggleTutorialAnimation(bool on)
    signal switchToOOMColorSensor()
    signal switchToIMColorSensor()
    signal pauseCapture(bool paused)
    signal cueSounded(string cue)
    signal soundSwitched(bool on)
    signal userAskedToExit()
    signal quit()
    signal storeFirstCamera()
    signal touchDown(int x, int y)
    signal touchMove(int x, int y)
    signal touchUp(int x, int y)
    signal stateChanged(int state)
    signal startDownloadingUpdate()
    signal abortDownloadingUpdate()

    function setLeftToRightLanguage(leftToRight) { mirrored = !leftToRight }
    function modifyUiToStateInQML(state) { status.state = state }
    function showMovementText(message) { status.movementText = message }
    function setHoldStill(on) { status.holdStill = on }
    function showCalibrationStartupText(message) {
        status.startText = message
        if (message !== "") cueSounded("failed")
    }
    function showSaveCalibrationText(message) {
        status.showSaveText(message)
        if (status.savedText !== "") cueSounded("stored")
    }
    function showStoredFacts(facts) { status.storedFacts = facts }
    function showSoundSwitch(on) { status.soundOn = on }
    function showHistory(entries, reportsFolder) { status.history = entries; status.reportsFolder = reportsFolder }
    function openHistory() { pages.openHistory() }
    function setLightingDialogText(title, message) { status.lightingTitle = title; status.lightingMessage = message }
    function setLightingProgress(progress) { status.lightingProgress = progress }
    function toggleLightingContinueButtonVisibility(shown, label) {
        status.lit = shown
        status.lightingContinueLabel = label
    }
    function setCalibrationProgress(progress) {
        if (progress === 0) status.startAttempt()
        status.progress = progress
    }
    function setColorCameraDescriptionText(text) { status.cameraName = text }
    function showReturnToAWellLitAreaPopup() { status.lightNeeded = true }
    function hideReturnToAWellLitAreaPopup() { status.lightNeeded = false }
    function flashCalibrationImageViews() { ++status.photoCount; pages.confirmPhoto(); cueSounded("photo") }
    function showHowToMoveTutorialButton() { status.howToMoveOffered = true }
    function forceSingleCameraCalibration() { status.singleCamera = true }
    function displayMissingQ550Device() { status.notice = "missingDevicePage" }
    function displayMissingPlatformCamera() { status.notice = "missingPlatformCameraPage" }
    function displayPlatformCameraIssue() { status.notice = "platformCameraIssuePage" }
    function offerFirstCamera() { status.failed = true; pages.askToLeave() }
    function cancelSaving() { status.saving = false }
    function showLastSaveFailed(message) { status.lastSaveFailedText = message }
    function showLastCalibration(message) { status.lastCalibrationText = message }
    function showCapturedPhoto(source) { status.photos = status.photos.concat([source]) }
    function showDetailMap(areas, look) { status.detail = areas; status.look = look }
    function showPhotoWorth(worth) {
        status.photoWorths = status.photoWorths.concat([worth])
        pages.confirmWorth(worth)
    }
    function showFoundTurn(anglesDeg, quality) { status.foundTurn = anglesDeg; status.foundQuality = quality }

    function showUpdateOffer(version) { status.offerUpdate(version) }
    function showUpdateProgress(receivedBytes, totalBytes) { status.updateProgressed(receivedBytes, totalBytes) }
    function showUpdateInterrupted() { status.updateInterrupted = true }
    function showUpdateStarting() { status.updatePhase = "starting" }
    function showUpdateFailed(message, mayTryAgain) { status.failUpdate(message, mayTryAgain) }

    property bool mirrored: false
    property bool askedBeforeClosing: false
    readonly property bool tutorialShown: status.state === _state_RefiningTutorial && !status.foundShown && status.paged
    onTutorialShownChanged: toggleTutorialAnimation(tutorialShown)

    readonly property bool capturePaused: pages.covered || !status.paged || status.betweenShown
    onCapturePausedChanged: pauseCapture(capturePaused)

    function goTo(state) {
        status.state = state
        if (state === _state_StartingCalibration) status.startAttempt()  // the page must not show the last attempt
        stateChanged(state)
    }
    function goOnWithSecondCamera() {
        status.secondCamera = true
        status.between = true
        status.state = _state_StartingCalibration  // before the application forgets the result, which is still shown
        switchToOOMColorSensor()
        goTo(_state_StartingCalibration)
    }
    readonly property bool lastCamera: status.singleCamera || status.secondCamera
    function acceptRefinement() {
        if (lastCamera) {
            store(quit)
        } else {
            status.firstCameraAccepted = true
            goOnWithSecondCamera()
        }
    }
    function keepStored() {
        if (!lastCamera) goOnWithSecondCamera()
        else if (status.firstCameraStorable) store(storeFirstCamera)
        else userAskedToExit()
    }
    function store(signal) {
        saveSoon.wanted = signal
        status.saving = true
        saveSoon.start()
    }
    onClosing: {
        if (saveSoon.running) {
            saveSoon.stop()
            saveSoon.wanted()
        }
        if (askedBeforeClosing || !status.somethingToLose) return
        askedBeforeClosing = true
        close.accepted = false
        pages.askToLeave()
    }

    Binding { target: Theme; property: "windowWidth"; value: root.width }
    Binding { target: Theme; property: "windowHeight"; value: root.height }
    CalibrationStatus { id: status }
    Timer {
        id: saveSoon
        property var wanted
        interval: 100  // shows the saving page before the main thread is blocked
        onTriggered: wanted()
    }
    PictureLayout {
        id: layout
        width: root.width
        height: root.height
        mirrored: root.mirrored
        wideColour: status.secondCamera
    }
    // The parent is not the window's content item, which is larger than the window when Qt adds a border in full
    // screen.
    Pictures {
        id: pictures
        width: root.width
        height: root.height
        status: status
        layout: layout
        onTouchDown: root.touchDown(x, y)
        onTouchMove: root.touchMove(x, y)
        onTouchUp: root.touchUp(x, y)
    }
    Pages {
        id: pages
        width: root.width
        height: root.height
        status: status
        layout: layout
        overlay: pictures.refinementView
        dragging: pictures.dragging
        LayoutMirroring.enabled: root.mirrored
        LayoutMirroring.childrenInherit: true
        onWanted: root.goTo(state)
        onBegun: { root.switchToIMColorSensor(); root.goTo(root._state_DetectingLighting) }
        onAccepted: root.acceptRefinement()
        onStoredKept: root.keepStored()
        onLeft: root.userAskedToExit()
        onCueSounded: root.cueSounded(cue)
        onSoundSwitched: { status.soundOn = on; root.soundSwitched(on) }
        onUpdateWanted: { status.fetchUpdate(); root.startDownloadingUpdate() }
        onUpdateGivenUp: { status.updatePhase = ""; root.abortDownloadingUpdate() }
        onFirstCameraStored: root.store(root.storeFirstCamera)
        onStayed: root.askedBeforeClosing = false
    }
}
