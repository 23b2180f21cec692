import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../theme"

// Covers the page until one of its buttons is pressed. The buttons have equal widths.
Rectangle {
    id: question
    property Item mainButton: null
    property alias text: statement.text
    default property alias buttons: row.data

    component Answer: TouchButton {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.preferredHeight: Theme.bigTarget
    }
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
                id: statement
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
            RowLayout {
                id: row
                Layout.fillWidth: true
                spacing: Theme.gap
            }
        }
    }
}
