import QtQuick 2.15
import "../components"
import "../theme"

Screen {
    id: screen
    property int waitedS: 0

    Timer {
        running: screen.shown
        interval: 1000
        repeat: true
        onTriggered: ++screen.waitedS
    }
    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.length(800))
        spacing: Theme.margin
        Item {
            width: parent.width
            height: Theme.length(180)
            Illustration {
                anchors.centerIn: parent
                width: height
                height: parent.height
                drawing: "camera"
                SequentialAnimation on opacity {
                    running: screen.shown
                    loops: Animation.Infinite
                    NumberAnimation { to: 0.45; duration: Theme.slowly; easing.type: Easing.InOutSine }
                    NumberAnimation { to: 1; duration: Theme.slowly; easing.type: Easing.InOutSine }
                }
            }
        }
        Words {
            width: parent.width
            text: qsTr("Opening the camera…")
            font.pixelSize: Theme.instructionSize
            horizontalAlignment: Text.AlignHCenter
        }
        Words {
            width: parent.width
            height: 3 * Theme.bodySize * Theme.lineHeight
            color: Theme.quietText
            horizontalAlignment: Text.AlignHCenter
            text: screen.waitedS < 8 ? ""
                : screen.waitedS < 25 ? qsTr("This can take half a minute after the tablet was switched on.")
                : qsTr("The camera does not answer yet. Close other programs that use it, or press Exit and start again.")
        }
    }
}
