import QtQuick 2.15
import QtQuick.Layouts 1.15
import "../components"
import "../theme"

// The panels fade while the image is what matters: during a drag, and while the stored calibration is shown. That one is
// shown once by itself, so that the user sees what a wrong calibration looks like.
Screen {
    id: screen
    property Item overlay
    property bool dragging: false
    signal continued()
    signal restarted()
    mainButton: continueButton

    readonly property real correction: overlay ? overlay.correctionDeg : 0
    readonly property bool comparing: storedButton.down || demonstration.comparing
    readonly property bool watching: dragging || comparing
    property bool touched: false  // since the page was entered
    onDraggingChanged: if (dragging) end()
    onShownChanged: {
        demonstration.stop()
        demonstration.comparing = false
        touched = false
        if (shown) demonstration.start()
    }
    function end() {
        touched = true
        demonstration.stop()
        demonstration.comparing = false
    }
    SequentialAnimation {
        id: demonstration
        property bool comparing: false
        PauseAnimation { duration: Theme.beforeDemonstration }
        ScriptAction { script: demonstration.comparing = true }
        PauseAnimation { duration: Theme.demonstration }
        ScriptAction { script: demonstration.comparing = false }
    }
    Binding {
        target: screen.overlay
        property: "storedShown"
        value: screen.comparing && screen.visible
    }
    Binding {
        target: screen.overlay
        property: "clearArea"
        value: screen.clearArea()
    }
    // The part of the image between the panels, relative to the image.
    function clearArea() {
        const full = layout.full
        const bottomEdge = height - bottom.height
        return Qt.rect(-full.x / full.width, (top.height - full.y) / full.height, width / full.width,
                       (bottomEdge - top.height) / full.height)
    }

    component Panel: Item {
        default property alias content: faded.data
        property alias solid: ground.opacity
        width: screen.width
        MouseArea { anchors.fill: parent }  // a touch beside a button must not drag the image
        Rectangle {
            id: ground
            anchors.fill: parent
            color: Qt.rgba(Theme.ground.r, Theme.ground.g, Theme.ground.b, Theme.veil)
            opacity: screen.watching ? 0 : 1
            Behavior on opacity { NumberAnimation { duration: Theme.briefly } }
        }
        Item { id: faded; anchors.fill: parent }
    }

    Panel {
        id: top
        height: screen.layout.headerHeight + Theme.smallGap
        ColumnLayout {
            anchors.fill: parent
            anchors.margins: Theme.smallGap
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: screen.layout.exitSpace + Theme.margin
            opacity: top.solid
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
        objectName: "viewHint"
        drawing: "attention"
        readonly property bool sparse: screen.overlay !== null && screen.overlay.depthSparse
        visible: !screen.watching && screen.overlay !== null && (sparse || screen.overlay.uprightEdgesMissing)
        text: sparse ? qsTr("Too little depth in view. Point at something a few meters away.")
                     : qsTr("No upright edge in view. Point at a tree trunk, a pole or the corner of a house.")
    }
    Pill {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: bottom.top
        anchors.bottomMargin: Theme.gap
        objectName: "refinementPill"
        visible: screen.comparing || !screen.touched
        drawing: screen.comparing ? "eye" : ""
        text: screen.comparing ? qsTr("Stored calibration")
            : qsTr("It usually fits already. Drag only if the lines lie beside the edges.")
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
                opacity: bottom.solid
                text: qsTr("Restart")
                onClicked: screen.restarted()
            }
            TouchButton {
                id: storedButton
                objectName: "storedButton"
                Layout.fillWidth: true  // shrinks in long languages
                Layout.minimumWidth: Theme.length(200)
                Layout.maximumWidth: implicitWidth
                opacity: screen.dragging ? bottom.solid : 1
                drawing: "eye"
                text: qsTr("Hold to compare")
                onPressed: screen.end()
            }
            Item { Layout.fillWidth: true }
            CorrectionReadout {
                Layout.preferredWidth: implicitWidth
                Layout.fillHeight: true
                opacity: screen.comparing ? bottom.solid : 1
                framed: screen.dragging
                correctionDeg: screen.correction
            }
            Item { Layout.fillWidth: true }
            TouchButton {
                id: continueButton
                objectName: "refinementContinueButton"
                Layout.preferredWidth: Math.max(implicitWidth, Theme.length(240))
                opacity: bottom.solid
                main: true
                text: qsTr("Continue")
                onClicked: screen.continued()
            }
        }
    }
}
