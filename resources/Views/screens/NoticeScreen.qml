import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

// Describes an error and what to do about it. The user can only leave.
Screen {
    id: screen
    property string drawing
    property string title
    property var steps: []
    signal left()
    mainButton: leaveButton

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 2 * Theme.margin
        anchors.topMargin: Theme.target + 2 * Theme.margin
        spacing: Theme.gap
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.margin
            Illustration {
                Layout.preferredWidth: Theme.length(160)
                Layout.preferredHeight: Theme.length(160)
                drawing: screen.drawing
            }
            Words {
                Layout.fillWidth: true
                Layout.preferredHeight: Theme.length(160)
                text: screen.title
                font.pixelSize: Theme.instructionSize
                font.weight: Font.DemiBold
                verticalAlignment: Text.AlignVCenter
            }
        }
        Repeater {
            model: screen.steps
            RowLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.maximumHeight: Theme.length(90)
                spacing: Theme.gap
                Rectangle {
                    Layout.preferredWidth: Theme.length(52)
                    Layout.preferredHeight: Theme.length(52)
                    radius: width / 2
                    color: Theme.panel
                    Words {
                        anchors.fill: parent
                        text: index + 1
                        color: Theme.now
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                    }
                }
                Words {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    text: modelData
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
        Item { Layout.fillHeight: true }
        TouchButton {
            id: leaveButton
            objectName: "noticeLeaveButton"
            Layout.alignment: Qt.AlignRight
            Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
            main: true
            text: qsTr("Exit")
            onClicked: screen.left()
        }
    }
}
