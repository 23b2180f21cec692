import QtQuick 2.15
import "../theme"

// A tablet held still, and the confirmation that a photo was taken.
Item {
    id: stage
    property bool running: false
    readonly property real side: Math.min(width, height) * 0.8

    Rectangle {
        anchors.centerIn: parent
        width: stage.side
        height: width * 0.68
        radius: Theme.radius * 2
        color: Theme.panel
        border.width: 2 * Theme.hairline
        border.color: Theme.text
        Illustration {
            anchors.fill: parent
            anchors.margins: Theme.margin
            drawing: "scenery"
            ink: Theme.quietText
        }
        Illustration {
            id: pause
            anchors.centerIn: parent
            width: parent.height * 0.5
            height: width
            drawing: "pause"
        }
        Illustration {
            id: tick
            anchors.centerIn: parent
            width: parent.height * 0.5
            height: width
            drawing: "done"
            opacity: 0
        }
    }
    SequentialAnimation {
        running: stage.running
        loops: Animation.Infinite
        PauseAnimation { duration: Theme.slowly }
        NumberAnimation { target: pause; property: "opacity"; to: 0; duration: Theme.briefly }
        NumberAnimation { target: tick; property: "opacity"; to: 1; duration: Theme.calmly }
        PauseAnimation { duration: Theme.slowly }
        NumberAnimation { target: tick; property: "opacity"; to: 0; duration: Theme.calmly }
        NumberAnimation { target: pause; property: "opacity"; to: 1; duration: Theme.briefly }
    }
}
