import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

// Three slides, one tap away from every page on which photos are taken.
Rectangle {
    id: slides
    property Item mainButton: nextButton
    readonly property bool last: view.currentIndex === view.count - 1

    function open() {
        view.setCurrentIndex(0)
        visible = true
    }
    objectName: "howToMove"
    visible: false
    color: Theme.ground
    MouseArea { anchors.fill: parent }

    component Slide: RowLayout {
        property alias text: statement.text
        default property alias picture: stage.data
        spacing: 2 * Theme.margin
        Item {
            id: stage
            Layout.preferredWidth: parent.width * 0.45
            Layout.fillHeight: true
            Layout.leftMargin: Theme.margin
        }
        Statement {
            id: statement
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.rightMargin: Theme.margin
            size: Theme.instructionSize
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.gap
        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.target
            text: qsTr("How to move")
            color: Theme.quietText
            verticalAlignment: Text.AlignVCenter
        }
        SwipeView {
            id: view
            objectName: "howToMoveView"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            Slide {
                text: qsTr("Point at scenery with detail.\nBuildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.")
                Illustration { anchors.fill: parent; drawing: "scenery" }
            }
            Slide {
                text: qsTr("Turn to another direction.\nTurn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.")
                TurningTablet { anchors.fill: parent; running: slides.visible && view.currentIndex === 1 }
            }
            Slide {
                text: qsTr("Pause until it flashes.\nHold the tablet still for a moment. The photo is taken by itself. Then turn again.")
                FlashingTablet { anchors.fill: parent; running: slides.visible && view.currentIndex === 2 }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.gap
            TouchButton {
                objectName: "howToMoveCloseButton"
                text: qsTr("Close")
                onClicked: slides.visible = false
            }
            Item {
                Layout.fillWidth: true
                Row {
                    anchors.centerIn: parent
                    spacing: Theme.gap
                    Repeater {
                        model: view.count
                        Rectangle {
                            width: Theme.gap
                            height: width
                            radius: width / 2
                            color: index === view.currentIndex ? Theme.now : Theme.line
                        }
                    }
                }
            }
            TouchButton {
                id: nextButton
                objectName: "howToMoveNextButton"
                Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
                main: true
                text: slides.last ? qsTr("Done") : qsTr("Next")
                onClicked: slides.last ? slides.visible = false : view.incrementCurrentIndex()
            }
        }
    }
}
