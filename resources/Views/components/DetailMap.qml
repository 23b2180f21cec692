import QtQuick 2.15
import "../theme"

// Shows over the infrared image which of its areas still need detail. The image is not mirrored, so the map is not
// either.
Item {
    id: map
    property var areas: []  // 0..1, row by row
    property string look: ""  // the direction in which the camera should turn
    readonly property string arrow: ({left: "arrowLeft", right: "arrowRight", up: "arrowUp", down: "arrowDown"})[look] || ""
    // Below the marks of the lowest areas.
    readonly property real legendHeight: Math.min(Theme.length(52), height / rows / 2 - Theme.length(20))
    readonly property int columns: 4
    readonly property int rows: 3
    LayoutMirroring.enabled: false

    Rectangle {
        // beside the marks of the outermost areas
        readonly property int side: Math.min(Theme.length(56), map.width / map.columns / 2 - Theme.length(25))
        objectName: "lookArrow"
        visible: map.look !== ""
        x: map.look === "left" ? Theme.smallGap / 2 : map.look === "right" ? map.width - side - Theme.smallGap / 2 : (map.width - side) / 2
        y: map.look === "up" ? Theme.smallGap : map.look === "down" ? map.height - side - map.legendHeight - Theme.smallGap : (map.height - side) / 2
        width: side
        height: side
        radius: side / 2
        color: Theme.ground
        border.width: Theme.hairline
        border.color: Theme.now
        Illustration {
            anchors.fill: parent
            anchors.margins: Theme.smallGap
            drawing: map.arrow
        }
    }
    Repeater {
        model: map.areas.length === map.columns * map.rows ? map.areas : []
        Item {
            readonly property bool enough: modelData >= 1
            x: (index % map.columns) * width
            y: Math.floor(index / map.columns) * height
            width: map.width / map.columns
            height: map.height / map.rows
            Rectangle {
                anchors.centerIn: parent
                width: Theme.length(34)
                height: width
                radius: width / 2
                color: Theme.ground
                opacity: 0.75
            }
            Illustration {
                visible: parent.enough
                anchors.centerIn: parent
                width: Theme.length(28)
                height: width
                drawing: "done"
            }
            Rectangle {
                visible: !parent.enough
                anchors.centerIn: parent
                width: Theme.length(24)
                height: width
                radius: width / 2
                color: "transparent"
                border.width: 2 * Theme.hairline
                border.color: Theme.now
                Rectangle {
                    anchors.centerIn: parent
                    width: parent.width * modelData
                    height: width
                    radius: width / 2
                    color: Theme.now
                }
            }
        }
    }
}
