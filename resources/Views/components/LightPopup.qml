import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../theme"

Rectangle {
    anchors.centerIn: parent
    width: Math.min(parent.width - 2 * Theme.margin, Theme.length(760))
    height: Math.min(parent.height - 2 * Theme.margin, Theme.length(260))
    radius: 2 * Theme.radius
    color: Theme.panel
    border.width: 2 * Theme.hairline
    border.color: Theme.now
    RowLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.margin
        Illustration {
            Layout.preferredWidth: Theme.length(160)
            Layout.preferredHeight: Theme.length(160)
            drawing: "sun"
        }
        Statement {
            Layout.fillWidth: true
            Layout.fillHeight: true
            size: Theme.instructionSize
            text: qsTr("Return to a well lit area.\nIt goes on by itself. The photos taken so far count.")
        }
    }
}
