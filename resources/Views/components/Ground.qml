import QtQuick 2.15
import "../theme"

// Covers everything except a row of holes with rounded corners, through which the camera images are visible. New holes
// fade in, because the first images may still be those of the previous page.
Item {
    id: ground
    property var holes: []  // rectangles of the same top and height, from left to right
    property real corner: 0
    readonly property bool open: holes.length > 0
    readonly property real upperEdge: open ? Math.max(0, holes[0].y) : height
    readonly property real lowerEdge: open ? Math.min(height, holes[0].y + holes[0].height) : height

    function gapStart(i) { return i === 0 ? 0 : holes[i - 1].x + holes[i - 1].width }
    function gapEnd(i) { return i === holes.length ? width : holes[i].x }

    component Cover: Rectangle { color: Theme.ground }
    Cover { width: ground.width; height: ground.upperEdge }
    Cover { width: ground.width; y: ground.lowerEdge; height: ground.height - y }
    Repeater {
        model: ground.open ? ground.holes.length + 1 : 0
        Cover {
            x: ground.gapStart(index)
            y: ground.upperEdge
            width: ground.gapEnd(index) - x
            height: ground.lowerEdge - ground.upperEdge
        }
    }
    Repeater {
        model: ground.holes
        Item {
            x: modelData.x
            y: modelData.y
            width: modelData.width
            height: modelData.height
            Cover {
                anchors.fill: parent
                NumberAnimation on opacity { from: 1; to: 0; duration: Theme.calmly; easing.type: Easing.InQuad }
            }
            Rectangle {
                visible: ground.corner > 0
                anchors.fill: parent
                anchors.margins: -ground.corner
                radius: 2 * ground.corner
                color: "transparent"
                border.width: ground.corner
                border.color: Theme.ground
            }
        }
    }
}
