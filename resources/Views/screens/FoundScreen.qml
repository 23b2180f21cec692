import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

Screen {
    id: screen
    signal continued()
    mainButton: continueButton
    readonly property var turn: status.foundTurn.length === 3 ? status.foundTurn : [0, 0, 0]
    readonly property real total: Math.sqrt(turn[0] * turn[0] + turn[1] * turn[1] + turn[2] * turn[2])

    function degrees(angle) { return qsTr("%1°").arg(Number(Math.abs(angle)).toLocaleString(Qt.locale(), "f", 2)) }

    component Part: Rectangle {
        property alias drawing: picture.drawing
        property alias value: value.text
        property alias meaning: meaning.text
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredWidth: 1
        radius: Theme.radius
        color: Theme.panel
        Illustration {
            id: picture
            anchors.left: parent.left
            anchors.leftMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Theme.length(88), parent.width * 0.3)
            height: width
        }
        Words {
            id: value
            anchors.left: picture.right
            anchors.right: parent.right
            anchors.bottom: parent.verticalCenter
            anchors.margins: Theme.gap
            anchors.bottomMargin: 0
            font.pixelSize: Theme.instructionSize
            font.weight: Font.DemiBold
        }
        Words {
            id: meaning
            anchors.left: picture.right
            anchors.right: parent.right
            anchors.top: parent.verticalCenter
            anchors.bottom: parent.bottom
            anchors.leftMargin: Theme.gap
            anchors.rightMargin: Theme.smallGap
            anchors.bottomMargin: Theme.smallGap
            color: Theme.quietText
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.gap
        RowLayout {
            Layout.fillWidth: true
            Layout.rightMargin: screen.layout.exitSpace
            spacing: Theme.margin
            Illustration {
                Layout.preferredWidth: Theme.length(120)
                Layout.preferredHeight: Theme.length(120)
                drawing: "done"
            }
            ColumnLayout {
                spacing: 0
                Words {
                    Layout.fillWidth: true
                    text: screen.status.cameraName
                    font.pixelSize: Theme.captionSize
                    color: Theme.quietText
                }
                Words {
                    Layout.fillWidth: true
                    Layout.preferredHeight: Theme.length(100)
                    text: qsTr("A new calibration was found.")
                    font.pixelSize: Theme.instructionSize
                    font.weight: Font.DemiBold
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.length(90)
            Layout.topMargin: Theme.gap
            verticalAlignment: Text.AlignBottom
            font.pixelSize: Theme.headingSize
            text: qsTr("The color camera has turned by %1 since the stored calibration:").arg(screen.degrees(screen.total))
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.maximumHeight: Theme.length(190)
            Layout.fillHeight: true
            spacing: Theme.gap
            Part {
                drawing: screen.turn[1] > 0 ? "arrowRight" : "arrowLeft"
                value: screen.degrees(screen.turn[1])
                meaning: screen.turn[1] > 0 ? qsTr("to the right") : qsTr("to the left")
            }
            Part {
                drawing: screen.turn[0] > 0 ? "arrowUp" : "arrowDown"
                value: screen.degrees(screen.turn[0])
                meaning: screen.turn[0] > 0 ? qsTr("upwards") : qsTr("downwards")
            }
            Part {
                drawing: screen.turn[2] > 0 ? "clockwise" : "counterclockwise"
                value: screen.degrees(screen.turn[2])
                meaning: screen.turn[2] > 0 ? qsTr("tilted clockwise") : qsTr("tilted counterclockwise")
            }
        }
        Words {
            Layout.fillWidth: true
            color: Theme.quietText
            text: qsTr("Next, check it against the picture. It is stored only when you accept it.")
        }
        Item { Layout.fillHeight: true }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.margin
            PhotoRow {
                Layout.fillWidth: true
                Layout.preferredHeight: Theme.bigTarget
                count: screen.status.photoCount
                sources: screen.status.photos
            }
            TouchButton {
                id: continueButton
                objectName: "foundContinueButton"
                Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
                main: true
                text: qsTr("Continue")
                onClicked: screen.continued()
            }
        }
    }
}
