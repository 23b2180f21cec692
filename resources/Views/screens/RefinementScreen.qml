import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

Screen {
    id: screen
    property Item overlay
    signal continued()
    signal restarted()
    mainButton: continueButton

    readonly property real correction: overlay ? overlay.correctionDeg : 0
    Binding {
        target: screen.overlay
        property: "storedShown"
        value: storedButton.down && screen.visible
    }
    component Panel: Rectangle {
        width: screen.width
        color: Qt.rgba(Theme.ground.r, Theme.ground.g, Theme.ground.b, Theme.veil)
        MouseArea { anchors.fill: parent }  // a touch beside a button must not drag the image
    }

    Panel {
        id: top
        height: screen.layout.headerHeight + Theme.smallGap
        ColumnLayout {
            anchors.fill: parent
            anchors.margins: Theme.gap
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: screen.layout.exitSpace + Theme.margin
            spacing: 0
            Words {
                Layout.fillWidth: true
                text: screen.status.cameraName
                font.pixelSize: Theme.captionSize
                color: Theme.quietText
            }
            Statement {
                objectName: "refinementText"
                Layout.fillWidth: true
                Layout.fillHeight: true
                text: screen.status.refinementText
            }
        }
    }
    Pill {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: top.bottom
        anchors.topMargin: Theme.gap
        objectName: "depthSparseHint"
        visible: screen.overlay !== null && screen.overlay.depthSparse
        text: qsTr("Too little depth in view. Point at something a few metres away.")
    }
    Pill {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: bottom.top
        anchors.bottomMargin: Theme.gap
        visible: storedButton.down
        text: qsTr("Stored calibration")
    }
    Panel {
        id: bottom
        anchors.bottom: parent.bottom
        height: Theme.bigTarget + 2 * Theme.gap
        RowLayout {
            anchors.fill: parent
            anchors.margins: Theme.gap
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: Theme.margin
            spacing: Theme.gap
            TouchButton {
                objectName: "refinementRestartButton"
                text: qsTr("Restart")
                onClicked: screen.restarted()
            }
            TouchButton {
                id: storedButton
                objectName: "storedButton"
                Layout.minimumWidth: Theme.target
                drawing: "eye"
                text: qsTr("Hold to compare")
            }
            Item { Layout.fillWidth: true }
            CorrectionReadout {
                Layout.preferredWidth: implicitWidth
                Layout.fillHeight: true
                correctionDeg: screen.correction
            }
            Item { Layout.fillWidth: true }
            TouchButton {
                id: continueButton
                objectName: "refinementContinueButton"
                Layout.preferredWidth: Math.max(implicitWidth, Theme.length(240))
                main: true
                text: qsTr("Continue")
                onClicked: screen.continued()
            }
        }
    }
}
