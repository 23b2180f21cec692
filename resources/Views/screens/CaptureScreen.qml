import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

PairPage {
    id: screen
    property bool paused: false
    signal restarted()
    signal howToMoveWanted()

    function confirmPhoto() {
        flash.restart()
        confirmation.restart()
    }
    Timer { id: confirmation; interval: Theme.confirmation }

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
            visible: confirmation.running || instruction.text !== ""
            drawing: confirmation.running ? "done" : screen.status.holdStill || screen.paused ? "pause" : "move"
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
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                SteadyText {
                    id: instruction
                    objectName: "movementText"
                    anchors.fill: parent
                    wanted: screen.paused ? qsTr("Paused. No photos are taken.") : screen.status.movementText
                    opacity: confirmation.running ? 0 : 1
                    font.pixelSize: Theme.instructionSize
                    font.weight: Font.DemiBold
                    verticalAlignment: Text.AlignVCenter
                }
                Words {
                    anchors.fill: parent
                    visible: confirmation.running
                    text: qsTr("Photo %1 taken.").arg(screen.status.photoCount)
                    font: instruction.font
                    color: Theme.done
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
    pictures: [
        DetailMap {
            x: screen.layout.infrared.x
            width: screen.layout.infrared.width
            height: screen.layout.infrared.height
            areas: screen.status.detail
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
