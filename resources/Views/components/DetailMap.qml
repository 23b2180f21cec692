import QtQuick 2.15
import "../theme"

// Shows over the infrared image which of its areas still need detail. The image is not mirrored, so the map is not
// either.
Item {
    id: map
    property var areas: []  // 0..1, row by row
    readonly property int columns: 4
    readonly property int rows: 3
    LayoutMirroring.enabled: false

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
