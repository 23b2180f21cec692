import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

PairPage {
    id: screen
    signal started()
    signal howToMoveWanted()
    mainButton: startButton

    header: RowLayout {
        anchors.fill: parent
        anchors.rightMargin: screen.layout.exitSpace
        spacing: Theme.gap
        Illustration {
            Layout.preferredWidth: Theme.length(88)
            Layout.preferredHeight: Theme.length(88)
            drawing: "scenery"
        }
        Statement {
            objectName: "startText"
            Layout.fillWidth: true
            Layout.fillHeight: true
            size: Theme.bodySize * 1.2
            text: screen.status.startText !== "" ? screen.status.startText
                  : qsTr("Ready to take photos.\nPoint at buildings or trees in bright sunlight.")
        }
    }
    RowLayout {
        anchors.fill: parent
        spacing: Theme.gap
        TouchButton {
            objectName: "howToMoveButton"
            text: qsTr("How to move")
            drawing: screen.status.howToMoveOffered ? "turn" : ""
            onClicked: screen.howToMoveWanted()
        }
        Words {
            Layout.fillWidth: true
            text: screen.status.cameraName
            color: Theme.quietText
        }
        TouchButton {
            id: startButton
            objectName: "startButton"
            Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
            main: true
            text: qsTr("Start")
            onClicked: screen.started()
        }
    }
}
