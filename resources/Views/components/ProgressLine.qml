import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "../theme"

T.ProgressBar {
    id: bar
    locale: Qt.locale("en")  // the direction follows the interface only
    implicitHeight: Math.max(6, Theme.length(10))
    background: Rectangle {
        radius: height / 2
        color: Theme.panel
        border.width: Theme.hairline
        border.color: Theme.line
    }
    contentItem: Item {
        Rectangle {
            x: bar.mirrored ? parent.width - width : 0
            width: bar.position * parent.width
            height: parent.height
            radius: height / 2
            color: Theme.done
            Behavior on width { NumberAnimation { duration: Theme.calmly; easing.type: Easing.OutCubic } }
        }
    }
}
