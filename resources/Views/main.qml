import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import ImageRenderTypes 1.0

// A plain interface: every page, text and control that the application talks to, and nothing else.
// docs/interface-map.md tells what each of them is for.
Window {
    id: root
    objectName: "root"
    width: 1280
    height: 800
    visible: true
    color: "black"
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

    property int uiState: _state_FirstOpened
    property string notice: ""          // the object name of the notice that hides every page
    property bool saving: false
    property bool singleCamera: false
    property bool secondCamera: false

    signal toggleTutorialAnimation(bool on)
    signal switchToOOMColorSensor()
    signal switchToIMColorSensor()
    signal userAskedToExit()
    signal quit()
    signal touchDown(int x, int y)
    signal touchMove(int x, int y)
    signal touchUp(int x, int y)
    signal stateChanged(int state)
    signal startDownloadingUpdate()
    signal abortDownloadingUpdate()

    function setLeftToRightLanguage(leftToRight) { frame.LayoutMirroring.enabled = !leftToRight }
    function modifyUiToStateInQML(state) { uiState = state; toggleTutorialAnimation(state === _state_RefiningTutorial) }
    function showMovementText(message) { movementText.text = message }
    function showCalibrationStartupText(message) { startText.text = message }
    function showSaveCalibrationText(message) { saveText.text = message }
    function setLightingDialogText(title, message) { lightingTitle.text = title; lightingMessage.text = message }
    function setLightingProgress(progress) { lightingProgress.value = progress }
    function toggleLightingContinueButtonVisibility(shown, label) {
        lightingContinueButton.visible = shown
        lightingContinueButton.text = label
    }
    function setCalibrationProgress(progress) { calibrationProgress.value = progress }
    function setColorCameraDescriptionText(text) { colorCameraDescription.text = text }
    function showReturnToAWellLitAreaPopup() { returnToLightPopup.visible = true }
    function hideReturnToAWellLitAreaPopup() { returnToLightPopup.visible = false }
    function flashCalibrationImageViews() { flash.restart() }
    function showHowToMoveTutorialButton() { howToMoveButton.visible = true }
    function forceSingleCameraCalibration() { singleCamera = true }
    function displayMissingQ550Device() { notice = "missingDevicePage" }
    function displayMissingPlatformCamera() { notice = "missingPlatformCameraPage" }
    function displayPlatformCameraIssue() { notice = "platformCameraIssuePage" }
    function showLastSaveFailed(message) { lastSaveFailedText.text = message }

    function goTo(state) {
        uiState = state
        stateChanged(state)
    }
    function acceptRefinement() {
        if (!singleCamera && !secondCamera) {
            secondCamera = true
            switchToOOMColorSensor()
            goTo(_state_StartingCalibration)
        } else {
            saving = true
            saveSoon.start()
        }
    }

    function pressMainButton() {
        for (let i = 0; i < frame.children.length; ++i) {
            const page = frame.children[i]
            if (!page.visible || !page.mainButton || !page.mainButton.visible) continue
            page.mainButton.clicked()
            return
        }
    }
    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: !root.saving
        onActivated: root.pressMainButton()
    }

    // The image items paint underneath the interface, each into its parent's rectangle; the parent's y counts from
    // the window's lower edge, and these two stand in the middle.
    Item {
        width: root.width; height: root.height
        ColorImageRendererItem { objectName: "introImageView"; anchors.fill: parent }
    }
    Item {
        width: root.width / 2; height: width * 0.75; y: (root.height - height) / 2
        ColorImageRendererItem { objectName: "calibColorView"; anchors.fill: parent }
    }
    Item {
        x: root.width / 2; width: root.width / 2; height: width * 0.75; y: (root.height - height) / 2
        InfraredImageRendererItem { objectName: "calibInfraredView"; anchors.fill: parent }
    }
    Item {
        width: root.width; height: root.height
        DepthColorOverlayRenderer { objectName: "refinementWalkthroughView"; anchors.fill: parent }
    }
    Item {
        width: root.width; height: root.height
        DepthColorOverlayRenderer { objectName: "refinementView"; anchors.fill: parent }
        MouseArea {
            objectName: "refinementTouchArea"
            anchors.fill: parent
            enabled: refinementPage.visible
            onPressed: root.touchDown(mouse.x, mouse.y)
            onReleased: root.touchUp(mouse.x, mouse.y)
            onMouseXChanged: root.touchMove(mouseX, mouseY)
        }
    }

    // Nothing else clears what is outside of the pictures.
    component Cover: Rectangle {
        color: "black"
        width: root.width
    }
    readonly property bool sideBySide: uiState >= _state_DetectingLighting && uiState <= _state_FoundGoodSolution
    readonly property real bandHeight: (root.height - root.width * 0.375) / 2
    Cover { visible: root.sideBySide; height: root.bandHeight }
    Cover { visible: root.sideBySide; height: root.bandHeight; y: root.height - height }
    Cover { visible: root.uiState === root._state_FirstOpened || root.notice !== "" || root.saving; height: root.height }

    Timer {
        id: saveSoon
        interval: 50  // lets the saving page be seen before the main thread is busy
        onTriggered: root.quit()
    }

    component Page: Column {
        property bool shown: false
        property Button mainButton
        visible: shown && root.notice === "" && !root.saving
        spacing: 12
        padding: 24
    }
    component Words: Text {
        color: "white"
        font.pixelSize: 24
    }

    Item {
        id: frame
        anchors.fill: parent
        LayoutMirroring.childrenInherit: true

        Page {
            objectName: "openingPage"
            shown: root.uiState === root._state_FirstOpened
            Words { text: qsTr("Opening the camera…") }
        }
        Page {
            objectName: "introductionPage"
            mainButton: introContinueButton
            shown: root.uiState === root._state_ShowingIntroduction
            Words { id: lastSaveFailedText; objectName: "lastSaveFailedText" }
            Button {
                id: introContinueButton
                objectName: "introContinueButton"
                text: qsTr("Start")
                onClicked: { root.switchToIMColorSensor(); root.goTo(root._state_DetectingLighting) }
            }
        }
        Page {
            objectName: "lightingPage"
            mainButton: lightingContinueButton
            shown: root.uiState === root._state_DetectingLighting
            Words { id: lightingTitle; objectName: "lightingTitle" }
            Words { id: lightingMessage; objectName: "lightingMessage" }
            ProgressBar { id: lightingProgress; objectName: "lightingProgress" }
            Button {
                id: lightingContinueButton
                objectName: "lightingContinueButton"
                visible: false
                onClicked: root.goTo(root._state_StartingCalibration)
            }
        }
        Page {
            objectName: "startPage"
            mainButton: startButton
            shown: root.uiState === root._state_ResetCalibration || root.uiState === root._state_WaitingToCalibrate
            Words { id: startText; objectName: "startText" }
            Button { id: howToMoveButton; objectName: "howToMoveButton"; visible: false; text: qsTr("How to move") }
            Button {
                id: startButton
                objectName: "startButton"
                text: qsTr("Start")
                onClicked: root.goTo(root._state_StartingCalibration)
            }
        }
        Page {
            objectName: "capturePage"
            shown: root.uiState === root._state_StartingCalibration || root.uiState === root._state_ProcessingFrame
                   || root.uiState === root._state_FoundGoodSolution
            Words { id: colorCameraDescription; objectName: "colorCameraDescription" }
            Words { id: movementText; objectName: "movementText" }
            ProgressBar { id: calibrationProgress; objectName: "calibrationProgress" }
            Button {
                objectName: "captureRestartButton"
                text: qsTr("Restart")
                onClicked: root.goTo(root._state_ResetCalibration)
            }
        }
        Page {
            objectName: "tutorialPage"
            mainButton: tutorialContinueButton
            shown: root.uiState === root._state_RefiningTutorial
            Button {
                id: tutorialContinueButton
                objectName: "tutorialContinueButton"
                text: qsTr("Continue")
                onClicked: { root.toggleTutorialAnimation(false); root.goTo(root._state_RefiningCalibration) }
            }
        }
        Page {
            id: refinementPage
            objectName: "refinementPage"
            mainButton: refinementContinueButton
            shown: root.uiState === root._state_RefiningCalibration
            Words { text: saveText.text }
            Button {
                id: refinementContinueButton
                objectName: "refinementContinueButton"
                text: qsTr("Continue")
                onClicked: root.acceptRefinement()
            }
            Button {
                objectName: "refinementRestartButton"
                text: qsTr("Restart")
                onClicked: root.goTo(root._state_ResetCalibration)
            }
        }
        Column {
            objectName: "savingPage"
            visible: root.saving
            padding: 24
            Words { id: saveText; objectName: "saveText" }
        }
        Words { objectName: "missingDevicePage"; visible: root.notice === objectName; text: qsTr("The depth camera was not found.") }
        Words { objectName: "missingPlatformCameraPage"; visible: root.notice === objectName; text: qsTr("The rear camera was not found.") }
        Words { objectName: "platformCameraIssuePage"; visible: root.notice === objectName; text: qsTr("The rear camera delivers no picture.") }

        Button {
            objectName: "exitButton"
            anchors.right: parent.right
            text: qsTr("Exit")
            onClicked: root.userAskedToExit()
        }
        Rectangle {
            id: returnToLightPopup
            objectName: "returnToLightPopup"
            visible: false
            anchors.centerIn: parent
            width: 600; height: 120
            Text { anchors.centerIn: parent; text: qsTr("Return to a well lit area.") }
        }
        Rectangle {
            objectName: "flash"
            anchors.fill: parent
            color: "white"
            opacity: 0
            OpacityAnimator on opacity { id: flash; from: 0.6; to: 0; duration: 300; running: false }
        }
    }
}
