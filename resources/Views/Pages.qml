import QtQuick 2.15
import "components"
import "screens"
import "theme"

// Selects the page to show and the layer above it, and handles the keyboard.
Item {
    id: pages
    property CalibrationStatus status
    property PictureLayout layout
    property Item overlay
    property bool dragging: false  // the user drags the overlay
    signal wanted(int state)
    signal begun()
    signal accepted()
    signal storedKept()  // the user keeps the stored calibration and discards the result
    signal left()
    signal updateWanted()
    signal updateGivenUp()
    signal firstCameraStored()  // only the result of the first camera's refinement is to be stored
    signal stayed()
    signal cueSounded(string cue)
    signal soundSwitched(bool on)

    readonly property var states: status.states
    readonly property int step: status.state
    readonly property bool paged: status.paged
    readonly property var screens: [opening, introduction, lighting, start, between, capture, found, tutorial, refinement, saving,
                                    missingDevice, missingRearCamera, rearCameraTrouble]
    readonly property bool covered: howToMove.visible || history.visible || leaveQuestion.visible
                                    || restartQuestion.visible || updateNotice.visible

    // The name of what the user can operate, for the log.
    readonly property string uppermost: {
        for (const cover of [updateNotice, leaveQuestion, restartQuestion, howToMove, history])
            if (cover.visible) return cover.objectName
        const page = screens.find(screen => screen.shown)
        return page ? page.objectName : ""
    }
    onUppermostChanged: if (uppermost !== "") console.info("The interface shows " + uppermost + ".")

    function confirmPhoto() { capture.confirmPhoto() }
    function confirmWorth(worth) { capture.confirmWorth(worth) }
    function askToLeave() { leaveQuestion.visible = true }
    function openHistory() { history.open() }
    Connections {
        target: pages.status
        function onNoticeChanged() {  // nothing may cover a notice
            howToMove.visible = false
            history.visible = false
            leaveQuestion.visible = false
            restartQuestion.visible = false
        }
        function onStateChanged() {  // the attempt has ended by itself, so the question no longer applies
            if (pages.status.state <= pages.states.waiting) restartQuestion.visible = false
        }
    }
    function restart() {
        if (status.photoCount > 0 || status.state >= states.found) restartQuestion.visible = true
        else wanted(states.reset)
    }
    function leave() {
        if (status.somethingToLose) askToLeave()
        else left()
    }
    // A notice must not cause the loss of the first camera's calibration.
    function leaveNotice() {
        if (status.firstCameraStorable) askToLeave()
        else left()
    }
    function pressMainButton() {
        const page = updateNotice.visible ? updateNotice
                   : leaveQuestion.visible ? leaveQuestion
                   : restartQuestion.visible ? restartQuestion
                   : howToMove.visible ? howToMove : history.visible ? history : screens.find(screen => screen.shown)
        if (page === updateNotice && !updateNotice.enabled) return
        if (page && page.mainButton && page.mainButton.visible) page.mainButton.clicked()
    }
    function goBack() {
        if (updateNotice.visible) updateNotice.close()
        else if (leaveQuestion.visible) leaveQuestion.stay()
        else if (restartQuestion.visible) restartQuestion.visible = false
        else if (howToMove.visible) howToMove.visible = false
        else if (history.visible) history.visible = false
        else leave()
    }
    Shortcut {
        sequences: ["Return", "Enter"]
        autoRepeat: false  // holding a key must not skip pages
        enabled: !pages.status.saving
        onActivated: pages.pressMainButton()
    }
    Shortcut {
        sequence: "Escape"
        autoRepeat: false
        enabled: !pages.status.saving
        onActivated: pages.goBack()
    }
    Binding { target: pages.layout; property: "exitSpace"; value: exitButton.width + Theme.margin }

    Item {
        anchors.fill: parent
        enabled: !pages.covered

        OpeningScreen {
            id: opening
            objectName: "openingPage"
            shown: pages.paged && pages.step === pages.states.firstOpened
            status: pages.status
        }
        IntroductionScreen {
            id: introduction
            objectName: "introductionPage"
            shown: pages.paged && pages.step === pages.states.introduction
            status: pages.status
            layout: pages.layout
            onBegun: pages.begun()
            onSoundSwitched: pages.soundSwitched(on)
            onHistoryWanted: pages.openHistory()
        }
        LightingScreen {
            id: lighting
            objectName: "lightingPage"
            shown: pages.paged && pages.step === pages.states.lighting
            status: pages.status
            layout: pages.layout
            onContinued: pages.wanted(pages.states.starting)
        }
        StartScreen {
            id: start
            objectName: "startPage"
            shown: pages.paged && (pages.step === pages.states.reset || pages.step === pages.states.waiting)
            status: pages.status
            layout: pages.layout
            onStarted: pages.wanted(pages.states.starting)
            onHowToMoveWanted: howToMove.open()
        }
        BetweenScreen {
            id: between
            objectName: "betweenPage"
            shown: pages.paged && pages.status.betweenShown
            status: pages.status
            layout: pages.layout
            onContinued: pages.status.between = false
        }
        CaptureScreen {
            id: capture
            objectName: "capturePage"
            shown: pages.paged && !pages.status.betweenShown && pages.step >= pages.states.starting && pages.step <= pages.states.found
            status: pages.status
            layout: pages.layout
            paused: pages.covered
            onLightNoticeShownChanged: if (lightNoticeShown) pages.cueSounded("lightLost")
            onRestarted: pages.restart()
            onHowToMoveWanted: howToMove.open()
        }
        FoundScreen {
            id: found
            objectName: "foundPage"
            shown: pages.paged && pages.status.foundShown
            status: pages.status
            layout: pages.layout
            onContinued: {
                if (pages.status.practised && pages.step === pages.states.tutorial) pages.wanted(pages.states.refining)
                pages.status.foundRead = true
            }
            onKept: pages.storedKept()
            onShownChanged: if (shown) pages.cueSounded("found")
        }
        TutorialScreen {
            id: tutorial
            objectName: "tutorialPage"
            shown: pages.paged && !pages.status.foundShown && pages.step === pages.states.tutorial
            status: pages.status
            layout: pages.layout
            onContinued: pages.wanted(pages.states.refining)
        }
        RefinementScreen {
            id: refinement
            objectName: "refinementPage"
            shown: pages.paged && !pages.status.foundShown && pages.step === pages.states.refining
            status: pages.status
            layout: pages.layout
            overlay: pages.overlay
            dragging: pages.dragging
            onContinued: pages.accepted()
            onRestarted: pages.restart()
        }
        SavingScreen {
            id: saving
            objectName: "savingPage"
            shown: pages.status.saving
            status: pages.status
        }
        NoticeScreen {
            id: missingDevice
            objectName: "missingDevicePage"
            shown: pages.status.notice === objectName && !pages.status.saving
            drawing: "missing"
            title: qsTr("The depth camera was not found.")
            // Switching the tablet off would lose an accepted calibration.
            steps: pages.status.firstCameraStorable
                   ? [qsTr("Close every other program that uses a camera."),
                      qsTr("Start the calibration again. The first camera's calibration can be stored when you leave.")]
                   : [qsTr("Close every other program that uses a camera."),
                      qsTr("Switch the tablet off and on again."),
                      qsTr("Start the calibration again. If the camera is still missing, the tablet needs service.")]
            onLeft: pages.leaveNotice()
        }
        NoticeScreen {
            id: missingRearCamera
            objectName: "missingPlatformCameraPage"
            shown: pages.status.notice === objectName && !pages.status.saving
            drawing: "rearMissing"
            title: qsTr("The rear camera was not found.")
            steps: [qsTr("Check in the system's privacy settings that programs may use the camera."),
                    qsTr("Check in the device manager that the rear camera is switched on."),
                    qsTr("Start the calibration again.")]
            onLeft: pages.leaveNotice()
        }
        NoticeScreen {
            id: rearCameraTrouble
            objectName: "platformCameraIssuePage"
            shown: pages.status.notice === objectName && !pages.status.saving
            drawing: "rearMissing"
            title: qsTr("The rear camera delivers no picture.")
            steps: [qsTr("Close every other program that uses the rear camera."),
                    qsTr("Make sure that nothing covers the camera."),
                    pages.status.firstCameraStorable
                    ? qsTr("Start the calibration again. The first camera's calibration can be stored when you leave.")
                    : qsTr("Start the calibration again. What was found so far is not stored.")]
            onLeft: pages.leaveNotice()
        }
        TouchButton {
            id: exitButton
            objectName: "exitButton"
            visible: pages.paged  // notices have their own
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Theme.margin
            opacity: refinement.shown && refinement.watching ? 0 : 1
            text: qsTr("Exit")
            onClicked: pages.leave()
        }
    }
    HowToMove { id: howToMove; anchors.fill: parent }
    History { id: history; anchors.fill: parent; status: pages.status }
    RestartQuestion {
        id: restartQuestion
        anchors.fill: parent
        onConfirmed: pages.wanted(pages.states.reset)
    }
    LeaveQuestion {
        id: leaveQuestion
        anchors.fill: parent
        firstCameraStorable: pages.status.firstCameraStorable
        stayable: !pages.status.failed
        onLeft: pages.left()
        onFirstCameraStored: {
            visible = false
            pages.firstCameraStored()
        }
        onVisibleChanged: if (!visible) pages.stayed()
    }
    UpdateNotice {
        id: updateNotice
        anchors.fill: parent
        status: pages.status
        onWanted: pages.updateWanted()
        onGivenUp: pages.updateGivenUp()
    }
}
