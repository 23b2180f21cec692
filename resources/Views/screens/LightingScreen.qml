import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

PairPage {
    id: screen
    signal continued()
    mainButton: continueButton

    // A practised user does not need to confirm that the light suffices.
    Timer {
        id: lastingLight
        interval: Theme.lastingLight
        running: screen.shown && screen.enabled && screen.status.lit && screen.status.practised
        onTriggered: screen.continued()
    }

    header: RowLayout {
        anchors.fill: parent
        anchors.rightMargin: screen.layout.exitSpace
        spacing: Theme.gap
        Illustration {
            Layout.preferredWidth: Theme.length(88)
            Layout.preferredHeight: Theme.length(88)
            drawing: screen.status.lit ? "done" : "sun"
        }
        ColumnLayout {
            spacing: 0
            Words {
                objectName: "lightingTitle"
                Layout.fillWidth: true
                Layout.preferredHeight: Theme.headingSize * 1.3
                text: screen.status.lightingTitle
                font.pixelSize: Theme.headingSize
                font.weight: Font.DemiBold
                verticalAlignment: Text.AlignVCenter
            }
            Words {
                objectName: "lightingMessage"
                Layout.fillWidth: true
                Layout.fillHeight: true
                text: screen.status.lightingMessage
            }
        }
    }
    RowLayout {
        anchors.fill: parent
        spacing: Theme.margin
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.smallGap
            LightMeter {
                objectName: "lightingProgress"
                Layout.fillWidth: true
                value: screen.status.lightingProgress
                enough: screen.status.lit
            }
            RowLayout {
                Layout.fillWidth: true
                Words { text: qsTr("Light"); font.pixelSize: Theme.captionSize; color: Theme.quietText }
                Item { Layout.fillWidth: true }
                Words {
                    text: lastingLight.running ? qsTr("It goes on by itself in a moment.") : qsTr("Enough light at the mark")
                    font.pixelSize: Theme.captionSize
                    color: Theme.quietText
                }
            }
        }
        TouchButton {
            id: continueButton
            objectName: "lightingContinueButton"
            Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
            visible: screen.status.lit
            main: true
            text: screen.status.lightingContinueLabel
            onClicked: screen.continued()
        }
    }
}
