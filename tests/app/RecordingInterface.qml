import QtQuick 2.15
import QtQuick.Window 2.15
import ImageRenderTypes 1.0

// An interface without pages, which records the calls of the application.
Window {
    id: root
    width: 800
    height: 600
    visible: true

    property var calls: []
    property var latest: ({})
    property int clicks: 0

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

    function add(name, values) { calls.push([name].concat(values).join("|")) }
    // Calls that are repeated in every pass are recorded only when their values change.
    function note(name, values) {
        if (latest[name] !== String(values)) add(name, values)
        latest[name] = String(values)
    }

    function setLeftToRightLanguage(on) { add("leftToRight", [on]) }
    function modifyUiToStateInQML(state) { add("state", [state]) }
    function showMovementText(text) { note("movement", [text]) }
    function setHoldStill(on) {}
    function showCalibrationStartupText(text) { add("startText", [text]) }
    function showSaveCalibrationText(text) { add("saveText", [text]) }
    function setLightingDialogText(title, text) { note("lighting", [title, text]) }
    function setLightingProgress(value) { note("light", [value.toFixed(3)]) }
    function toggleLightingContinueButtonVisibility(on, label) { note("lightContinue", [on, label]) }
    function setCalibrationProgress(value) { add("progress", [value.toFixed(1)]) }
    function setColorCameraDescriptionText(text) { add("camera", [text]) }
    function showReturnToAWellLitAreaPopup() { note("popup", [true]) }
    function hideReturnToAWellLitAreaPopup() { note("popup", [false]) }
    function flashCalibrationImageViews() { add("flash", []) }
    function showHowToMoveTutorialButton() { add("howToMove", []) }
    function forceSingleCameraCalibration() { add("singleCamera", []) }
    function displayMissingQ550Device() { add("missingDevice", []) }
    function displayMissingPlatformCamera() { add("missingPlatformCamera", []) }
    function displayPlatformCameraIssue() { add("platformCameraIssue", []) }
    function offerFirstCamera() { add("offerFirstCamera", []) }
    function cancelSaving() { add("cancelSaving", []) }
    function showLastSaveFailed(text) { add("lastSaveFailed", [text]) }
    function showLastCalibration(text) { add("lastCalibration", [text]) }
    function showCapturedPhoto(source) { add("photo", [source]) }
    function showDetailMap(areas, look) { add("detail", areas.map(area => area.toFixed(1)).concat([look])) }
    function showPhotoWorth(worth) { add("worth", [worth]) }
    function showStoredFacts(facts) { add("storedFacts", facts) }
    function showSoundSwitch(on) { add("soundSwitch", [on]) }
    function showHistory(entries, folder) { add("history", entries.map(entry => entry.stored + " " + entry.turnDeg.toFixed(1))) }
    function openHistory() { add("openHistory", []) }
    function showFoundTurn(anglesDeg, quality) {
        add("foundTurn", anglesDeg.map(angle => angle.toFixed(1)))
        add("foundQuality", [quality.verdict, quality.explained, quality.newPx < quality.storedPx])
    }

    function showUpdateOffer(version) { add("updateOffer", [version]) }
    function showUpdateProgress(received, total) { note("updateProgress", [received, total]) }
    function showUpdateInterrupted() { add("updateInterrupted", []) }
    function showUpdateStarting() { add("updateStarting", []) }
    function showUpdateFailed(text, again) { add("updateFailed", [text, again]) }

    Item {
        width: root.width; height: root.height
        ColorImageRendererItem { objectName: "introImageView" }
        ColorImageRendererItem { objectName: "calibColorView" }
        InfraredImageRendererItem { objectName: "calibInfraredView" }
        DepthColorOverlayRenderer { objectName: "refinementWalkthroughView" }
        DepthColorOverlayRenderer { objectName: "refinementView" }
        MouseArea { anchors.fill: parent; onPressed: ++root.clicks }
        Item { objectName: "savedHistoryButton"; width: 100; height: 50 }
    }
}
