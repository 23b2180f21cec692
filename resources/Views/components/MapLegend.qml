import QtQuick 2.15
import "../theme"

// Explains the marks of the map of detail, and its arrow where there is one.
Rectangle {
    id: legend
    property string arrow: ""  // the drawing of the arrow
    radius: Theme.radius
    color: Qt.rgba(Theme.ground.r, Theme.ground.g, Theme.ground.b, Theme.veil)

    component Entry: Item {
        default property alias mark: mark.data
        property alias text: words.text
        width: (legend.width - 3 * Theme.gap) / 2
        height: legend.height
        Item {
            id: mark
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.length(26)
            height: width
        }
        Words {
            id: words
            anchors.left: mark.right
            anchors.right: parent.right
            anchors.leftMargin: Theme.smallGap
            height: parent.height
            font.pixelSize: Theme.captionSize
            verticalAlignment: Text.AlignVCenter
        }
    }
    Row {
        x: Theme.gap
        spacing: Theme.gap
        Entry {
            text: qsTr("Detail missing here")
            Rectangle {
                anchors.fill: parent
                radius: width / 2
                color: "transparent"
                border.width: 2 * Theme.hairline
                border.color: Theme.now
            }
        }
        Entry {
            text: legend.arrow !== "" ? qsTr("Turn this way next") : qsTr("Enough detail")
            Illustration { anchors.fill: parent; drawing: legend.arrow !== "" ? legend.arrow : "done" }
        }
    }
}
