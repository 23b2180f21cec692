import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "../theme"

// Shows the amount of light, with a mark at the required amount.
T.ProgressBar {
    id: meter
    property bool enough: false
    readonly property real mark: 122 / 130  // slightly before full, which means lit

    locale: Qt.locale("en")  // the direction follows the interface only
    implicitHeight: Math.max(20, Theme.length(36))
    background: Rectangle {
        radius: height / 2
        color: Theme.panel
        border.width: Theme.hairline
        border.color: Theme.line
    }
    contentItem: Item {
        Rectangle {
            x: meter.mirrored ? parent.width - width : 0
            width: Math.max(height, meter.visualPosition >= 0 ? meter.position * parent.width : 0)
            height: parent.height
            radius: height / 2
            color: meter.enough ? Theme.done : Theme.now
            Behavior on width { NumberAnimation { duration: Theme.calmly } }
            Behavior on color { ColorAnimation { duration: Theme.calmly } }
        }
        Rectangle {
            objectName: "lightingMark"
            x: (meter.mirrored ? 1 - meter.mark : meter.mark) * parent.width - width / 2
            anchors.verticalCenter: parent.verticalCenter
            width: 2 * Theme.hairline
            height: parent.height + Theme.gap
            color: Theme.text
        }
    }
}
