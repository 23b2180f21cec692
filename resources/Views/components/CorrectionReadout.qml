import QtQuick 2.15
import "../theme"

// Shows the angle and the direction of the user's correction.
Item {
    id: readout
    property real correctionDeg: 0
    property bool framed: false  // with a ground of its own
    implicitWidth: values.width
    readonly property bool none: Math.abs(correctionDeg) < 0.005

    component Arrow: Illustration {
        height: Theme.length(44)
        width: height
        anchors.verticalCenter: parent.verticalCenter
    }
    Rectangle {
        visible: readout.framed
        anchors.fill: values
        anchors.margins: -Theme.smallGap
        radius: Theme.radius
        color: Theme.ground
        border.width: Theme.hairline
        border.color: Theme.now
    }
    Row {
        id: values
        anchors.centerIn: parent
        spacing: Theme.smallGap
        LayoutMirroring.enabled: false  // directions are those of the image, in every language
        Arrow { drawing: "chevronLeft"; opacity: readout.none || readout.correctionDeg < 0 ? 1 : 0.15 }
        Words {
            objectName: "correctionText"
            width: Theme.length(170)
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("%1°").arg(Number(readout.none ? 0 : Math.abs(readout.correctionDeg)).toLocaleString(Qt.locale(), "f", 2))
            font.pixelSize: Theme.instructionSize
            horizontalAlignment: Text.AlignHCenter
        }
        Arrow { drawing: "chevronRight"; opacity: readout.none || readout.correctionDeg > 0 ? 1 : 0.15 }
    }
}
