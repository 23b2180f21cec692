import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

Screen {
    id: screen
    signal continued()
    signal kept()
    mainButton: continueButton
    readonly property var quality: status.foundQuality || ({})
    readonly property var deviation: quality.deviationDeg || []
    readonly property var turn: status.foundTurn.length === 3 ? status.foundTurn : [0, 0, 0]
    readonly property real total: Math.sqrt(turn[0] * turn[0] + turn[1] * turn[1] + turn[2] * turn[2])

    function number(value, decimals) { return Number(value).toLocaleString(Qt.locale(), "f", decimals) }
    function degrees(angle, decimals) { return qsTr("%1°").arg(number(Math.abs(angle), decimals)) }
    function proof() {
        return qsTr("Offset in the photos: %1 px with the stored calibration, %2 px with the new one.")
            .arg(number(quality.storedPx, 1)).arg(number(quality.newPx, 1))
    }

    component Part: Rectangle {
        property alias drawing: picture.drawing
        property alias meaning: meaning.text
        property int axis
        readonly property var deviation: screen.deviation[axis]
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
        Row {
            id: value
            anchors.left: picture.right
            anchors.bottom: parent.verticalCenter
            anchors.leftMargin: Theme.gap
            spacing: Theme.smallGap
            Words {
                id: angle
                objectName: "foundAngle"
                text: screen.degrees(screen.turn[axis], deviation === undefined ? 2 : 3)
                font.pixelSize: Theme.headingSize
                font.weight: Font.DemiBold
                wrapMode: Text.NoWrap
            }
            Words {
                objectName: "foundDeviation"
                visible: deviation !== undefined
                anchors.baseline: angle.baseline
                text: visible ? "±\u2009" + screen.degrees(deviation, 3) : ""
                color: Theme.quietText
                wrapMode: Text.NoWrap
            }
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
                drawing: screen.quality.verdict === "far" ? "attention" : "done"
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
                    objectName: "foundVerdict"
                    text: screen.quality.verdict === "fits" ? qsTr("The stored calibration still fits.")
                        : screen.quality.verdict === "far" ? qsTr("The color camera has turned unusually far.")
                        : qsTr("A new calibration was found.")
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
            text: qsTr("The color camera has turned by %1 since the stored calibration:").arg(screen.degrees(screen.total, 2))
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.maximumHeight: Theme.length(190)
            Layout.fillHeight: true
            spacing: Theme.gap
            Part {
                axis: 1
                drawing: screen.turn[1] > 0 ? "arrowRight" : "arrowLeft"
                meaning: screen.turn[1] > 0 ? qsTr("to the right") : qsTr("to the left")
            }
            Part {
                axis: 0
                drawing: screen.turn[0] > 0 ? "arrowUp" : "arrowDown"
                meaning: screen.turn[0] > 0 ? qsTr("upwards") : qsTr("downwards")
            }
            Part {
                axis: 2
                drawing: screen.turn[2] > 0 ? "clockwise" : "counterclockwise"
                meaning: screen.turn[2] > 0 ? qsTr("tilted clockwise") : qsTr("tilted counterclockwise")
            }
        }
        Words {
            objectName: "foundProof"
            Layout.fillWidth: true
            visible: screen.quality.storedPx !== undefined
            text: visible ? screen.proof() : ""
        }
        Words {
            objectName: "foundUnexplained"
            Layout.fillWidth: true
            visible: screen.quality.explained === false
            color: Theme.now
            text: qsTr("A turn alone does not explain the photos. The camera may need service.")
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
                worths: screen.status.photoWorths
                complete: true
            }
            TouchButton {
                objectName: "keepStoredButton"
                visible: screen.quality.verdict === "fits"
                Layout.preferredHeight: Theme.bigTarget
                text: qsTr("Keep stored calibration")
                onClicked: screen.kept()
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
