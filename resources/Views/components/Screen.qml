import QtQuick 2.15
import ".."
import "../theme"

// One page. It fades in and disappears at once. `mainButton` is pressed by the Return key.
Item {
    property CalibrationStatus status
    property PictureLayout layout
    property bool shown: false
    property Item mainButton: null
    property bool softly: true

    anchors.fill: parent
    visible: shown
    opacity: 0
    enabled: opacity === 1  // a second tap during the fade was meant for the previous page
    onVisibleChanged: opacity = visible ? 1 : 0
    Behavior on opacity {
        enabled: visible && softly
        NumberAnimation { duration: Theme.briefly }
    }
    Component.onCompleted: opacity = visible ? 1 : 0
}
