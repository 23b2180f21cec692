import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

Screen {
    id: screen
    signal begun()
    signal soundSwitched(bool on)
    signal historyWanted()
    mainButton: continueButton

    component Step: RowLayout {
        property alias drawing: picture.drawing
        property alias text: words.text
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.maximumHeight: Theme.length(112)
        spacing: Theme.gap
        Rectangle {
            Layout.preferredWidth: Theme.length(84)
            Layout.preferredHeight: Theme.length(84)
            radius: Theme.radius
            color: Theme.panel
            Illustration { id: picture; anchors.fill: parent; anchors.margins: Theme.smallGap }
        }
        Words {
            id: words
            Layout.fillWidth: true
            Layout.fillHeight: true
            verticalAlignment: Text.AlignVCenter
        }
    }

    ColumnLayout {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.margins: Theme.margin
        width: screen.layout.panelWidth - Theme.margin
        spacing: Theme.gap

        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.target
            Layout.rightMargin: screen.layout.exitSpace
            text: qsTr("Camera calibration")
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            verticalAlignment: Text.AlignVCenter
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.length(116)
            visible: lastSaveFailedText.text !== ""
            radius: Theme.radius
            color: Theme.panel
            border.width: Theme.hairline
            border.color: Theme.now
            Words {
                id: lastSaveFailedText
                objectName: "lastSaveFailedText"
                anchors.fill: parent
                anchors.margins: Theme.gap
                text: screen.status.lastSaveFailedText
                verticalAlignment: Text.AlignVCenter
            }
        }
        Item { Layout.fillHeight: true }
        Step { drawing: "sun"; text: qsTr("Go outside into bright sunlight.") }
        Step {
            drawing: "photos"
            text: qsTr("Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.")
        }
        Step { drawing: "align"; text: qsTr("Check the result with one finger, and store it in the camera.") }
        Item { Layout.fillHeight: true }
        Words {
            objectName: "lastCalibrationText"
            Layout.fillWidth: true
            visible: text !== ""
            color: Theme.quietText
            text: screen.status.lastCalibrationText
        }
        Words {
            Layout.fillWidth: true
            color: Theme.quietText
            text: screen.status.singleCamera ? qsTr("Takes about three minutes.")
                                             : qsTr("Takes about five minutes for both cameras.")
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.gap
            TouchButton {
                objectName: "soundButton"
                Layout.preferredWidth: continueButton.Layout.preferredHeight
                Layout.preferredHeight: continueButton.Layout.preferredHeight
                drawing: screen.status.soundOn ? "soundOn" : "soundOff"
                onClicked: screen.soundSwitched(!screen.status.soundOn)
            }
            TouchButton {
                objectName: "historyButton"
                visible: screen.status.history.length > 0
                Layout.preferredHeight: continueButton.Layout.preferredHeight
                text: qsTranslate("History", "History")
                onClicked: screen.historyWanted()
            }
            TouchButton {
                id: continueButton
                objectName: "introContinueButton"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.max(Theme.target, Theme.length(96))
                main: true
                text: qsTr("Start")
                onClicked: screen.begun()
            }
        }
    }
}
