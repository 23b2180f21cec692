import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

Screen {
    id: screen
    signal continued()
    mainButton: continueButton

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
            text: qsTr("Example")
            color: Theme.quietText
            verticalAlignment: Text.AlignVCenter
        }
        Item { Layout.fillHeight: true }
        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: 2.4 * Theme.instructionSize * Theme.lineHeight
            verticalAlignment: Text.AlignBottom
            text: qsTr("It usually fits already.")
            font.pixelSize: Theme.instructionSize
            font.weight: Font.DemiBold
        }
        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: 4 * Theme.bodySize * Theme.lineHeight
            color: Theme.quietText
            text: qsTr("Every color is a distance. The white lines have to lie on the edges of things.")
        }
        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: 4 * Theme.bodySize * Theme.lineHeight
            text: qsTr("Only if they lie beside them, drag left or right until they fit.")
        }
        Item { Layout.fillHeight: true }
        TouchButton {
            id: continueButton
            objectName: "tutorialContinueButton"
            Layout.fillWidth: true
            Layout.preferredHeight: Math.max(Theme.target, Theme.length(96))
            main: true
            text: qsTr("Continue")
            onClicked: screen.continued()
        }
    }
}
