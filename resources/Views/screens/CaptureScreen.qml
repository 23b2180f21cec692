import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

PairPage {
    id: screen
    property bool paused: false
    signal restarted()
    signal howToMoveWanted()

    property string worth: ""  // of the photo that is being confirmed
    function confirmPhoto() {
        worth = ""
        flash.restart()
        confirmation.interval = Theme.confirmation
        confirmation.restart()
    }
    function confirmWorth(value) {
        worth = value
        if (worth === "") return
        confirmation.interval = Theme.longConfirmation
        confirmation.restart()
    }
    Timer { id: confirmation }
    function confirmationText() {
        const count = status.photoCount
        if (worth === "detail") return qsTr("Photo %1 brought nothing: too little detail in it.").arg(count)
        if (worth === "repeated") return qsTr("Photo %1 brought nothing new. Turn farther.").arg(count)
        return qsTr("Photo %1 taken.").arg(count)
    }

    // Near the threshold the light state changes with every frame, and the notice must not flicker.
    readonly property bool lightNeeded: status.lightNeeded
    property bool lightNoticeShown: false
    onLightNeededChanged: {
        lightSettles.interval = lightNeeded ? Theme.untilDark : Theme.untilLit
        lightSettles.restart()
    }
    onShownChanged: {
        if (shown) return
        lightSettles.stop()
        lightNoticeShown = false
    }
    Timer { id: lightSettles; onTriggered: screen.lightNoticeShown = screen.lightNeeded }

    header: RowLayout {
        anchors.fill: parent
        anchors.rightMargin: screen.layout.exitSpace
        spacing: Theme.gap
        Illustration {
            Layout.preferredWidth: Theme.length(72)
            Layout.preferredHeight: Theme.length(72)
            visible: instruction.text !== ""
            drawing: screen.status.holdStill || screen.paused ? "pause" : "move"
        }
        ColumnLayout {
            spacing: 0
            Words {
                objectName: "colorCameraDescription"
                Layout.fillWidth: true
                text: screen.status.cameraName
                font.pixelSize: Theme.captionSize
                color: Theme.quietText
            }
            SteadyText {
                id: instruction
                objectName: "movementText"
                Layout.fillWidth: true
                Layout.fillHeight: true
                wanted: screen.paused ? qsTr("Paused. No photos are taken.") : screen.status.movementText
                font.pixelSize: Theme.instructionSize
                font.weight: Font.DemiBold
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
    pictures: [
        DetailMap {
            id: map
            x: screen.layout.infrared.x
            width: screen.layout.infrared.width
            height: screen.layout.infrared.height
            areas: screen.status.detail
            look: screen.status.holdStill || screen.paused ? "" : screen.status.look
        },
        MapLegend {
            objectName: "mapLegend"
            arrow: map.arrow
            visible: screen.status.detail.length > 0
            x: screen.layout.infrared.x
            y: parent.height - height
            width: screen.layout.infrared.width
            height: map.legendHeight
        },
        Item {
            x: screen.layout.colour.x
            width: screen.layout.colour.width
            height: parent.height
            Pill {
                objectName: "photoConfirmation"
                visible: confirmation.running
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                anchors.bottomMargin: Theme.gap
                drawing: screen.worth === "" ? "done" : "nothing"
                text: screen.confirmationText()
            }
        },
        Rectangle {
            objectName: "flash"
            x: Math.min(screen.layout.colour.x, screen.layout.infrared.x)
            width: screen.layout.pairWidth
            height: parent.height
            radius: Theme.radius
            color: Theme.flash
            opacity: 0
            OpacityAnimator on opacity { id: flash; from: 0.75; to: 0; duration: Theme.calmly; running: false }
        }
    ]
    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.smallGap
        ProgressLine {
            objectName: "calibrationProgress"
            Layout.fillWidth: true
            value: screen.status.progress
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: Theme.gap
            TouchButton {
                objectName: "captureRestartButton"
                text: qsTr("Restart")
                onClicked: screen.restarted()
            }
            PhotoRow {
                Layout.fillWidth: true
                Layout.fillHeight: true
                count: screen.status.photoCount
                sources: screen.status.photos
                worths: screen.status.photoWorths
            }
            TouchButton {
                objectName: "captureHowToMoveButton"
                text: qsTr("How to move")
                onClicked: screen.howToMoveWanted()
            }
        }
    }
    LightPopup {
        objectName: "returnToLightPopup"
        parent: screen
        visible: screen.lightNoticeShown
    }
}
