import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

// Between the two cameras: the capture for the second one has begun, but is paused until the user has found scenery.
PairPage {
    id: screen
    signal continued()
    mainButton: continueButton

    header: RowLayout {
        anchors.fill: parent
        anchors.rightMargin: screen.layout.exitSpace
        spacing: Theme.gap
        Illustration {
            Layout.preferredWidth: Theme.length(88)
            Layout.preferredHeight: Theme.length(88)
            drawing: "done"
        }
        Statement {
            objectName: "betweenText"
            Layout.fillWidth: true
            Layout.fillHeight: true
            size: Theme.bodySize * 1.2
            text: qsTr("The first camera is done. Now the second one.\nTurn to other scenery.")
        }
    }
    RowLayout {
        anchors.fill: parent
        spacing: Theme.gap
        Words {
            objectName: "betweenLeaveText"
            Layout.fillWidth: true
            Layout.fillHeight: true
            verticalAlignment: Text.AlignVCenter
            color: Theme.quietText
            text: screen.status.firstCameraStorable
                  ? qsTr("If you exit now, you can store the calibration of the first camera.")
                  : qsTr("If you exit now, nothing is stored.")
        }
        TouchButton {
            id: continueButton
            objectName: "betweenContinueButton"
            Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
            main: true
            text: qsTr("Continue")
            onClicked: screen.continued()
        }
    }
}
