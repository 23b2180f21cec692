import QtQuick 2.15
import "../theme"

// A tablet that pans over scenery from one side to the other.
Item {
    id: stage
    property bool running: false
    readonly property real side: Math.min(width, height)

    Illustration {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        width: stage.side * 0.6
        height: width
        drawing: "scenery"
        ink: Theme.quietText
    }
    Illustration {
        id: tablet
        property real swing: 0
        x: (parent.width - width) / 2 + swing * stage.side * 0.25
        anchors.bottom: parent.bottom
        width: stage.side * 0.5
        height: width
        drawing: "turn"
        rotation: swing * 6
        SequentialAnimation on swing {
            running: stage.running
            loops: Animation.Infinite
            NumberAnimation { to: 1; duration: Theme.slowly; easing.type: Easing.InOutSine }
            PauseAnimation { duration: Theme.slowly / 2 }
            NumberAnimation { to: -1; duration: Theme.slowly; easing.type: Easing.InOutSine }
            PauseAnimation { duration: Theme.slowly / 2 }
        }
    }
}
