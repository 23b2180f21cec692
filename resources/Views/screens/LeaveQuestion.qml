import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

// Asked once, and only when something would be lost.
Rectangle {
    id: question
    property Item mainButton: stayable ? stayButton : storeButton
    property bool firstCameraStorable: false
    property bool stayable: true
    signal left()
    signal firstCameraStored()

    function stay() { if (stayable) visible = false }

    objectName: "leaveQuestion"
    visible: false
    color: Qt.rgba(0, 0, 0, 0.7)
    MouseArea { anchors.fill: parent }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.length(820))
        height: Math.min(parent.height - 2 * Theme.margin, Theme.length(340))
        radius: 2 * Theme.radius
        color: Theme.panel
        ColumnLayout {
            anchors.fill: parent
            anchors.margins: Theme.margin * 1.5
            spacing: Theme.margin
            Statement {
                Layout.fillWidth: true
                Layout.fillHeight: true
                text: qsTr("Leave without storing?\nThe photos and what was found so far would be lost. The camera keeps its old calibration.")
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.gap
                TouchButton {
                    objectName: "leaveButton"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.preferredHeight: Theme.bigTarget
                    text: qsTr("Leave")
                    onClicked: question.left()
                }
                TouchButton {
                    id: storeButton
                    objectName: "storeFirstCameraButton"
                    visible: question.firstCameraStorable
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.preferredHeight: Theme.bigTarget
                    main: !question.stayable
                    text: qsTr("Store first camera")
                    onClicked: question.firstCameraStored()
                }
                TouchButton {
                    id: stayButton
                    objectName: "stayButton"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    visible: question.stayable
                    main: true
                    text: qsTr("Stay")
                    onClicked: question.stay()
                }
            }
        }
    }
}
