import QtQuick 2.15
import "../components"
import "../theme"

Screen {
    id: screen
    softly: false  // storing blocks the thread that would run the animation
    readonly property bool saved: status.savedText !== ""

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.length(1000))
        spacing: Theme.margin
        Item {
            width: parent.width
            height: Theme.length(180)
            Illustration {
                anchors.centerIn: parent
                width: height
                height: parent.height
                drawing: screen.saved ? "done" : "camera"
            }
        }
        Words {
            objectName: "saveText"
            width: parent.width
            height: 2.4 * Theme.instructionSize
            text: screen.saved ? screen.status.savedText : qsTr("Storing the calibration in the camera…")
            font.pixelSize: Theme.instructionSize
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
        Words {
            objectName: "storedFacts"
            width: parent.width
            height: visible ? 2.8 * Theme.bodySize * Theme.lineHeight : 0
            visible: screen.saved && text !== ""
            text: screen.status.storedFacts.join("\n")
            horizontalAlignment: Text.AlignHCenter
        }
        Words {
            width: parent.width
            height: 2.4 * Theme.bodySize
            text: screen.saved ? qsTr("The program closes by itself, or when you touch the screen.") : qsTr("Please wait, and do not switch the tablet off.")
            color: Theme.quietText
            horizontalAlignment: Text.AlignHCenter
        }
        // Pressed through the application, which receives all input once the program is ending.
        TouchButton {
            objectName: "savedHistoryButton"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: screen.saved && screen.status.history.length > 0
            text: qsTranslate("History", "History")
        }
    }
}
