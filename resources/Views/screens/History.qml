import QtQuick 2.15
import QtQuick.Layouts 1.15
import ".."
import "../components"
import "../theme"

// The newest calibrations of this tablet, read-only. The reports themselves are opened elsewhere (docs/privileges.md).
Rectangle {
    id: page
    property CalibrationStatus status
    property Item mainButton: closeButton

    function open() {
        list.positionViewAtBeginning()
        visible = true
    }
    function number(value, decimals) { return Number(value).toLocaleString(Qt.locale(), "f", decimals) }
    // From left to right, as the arrow points, in every language.
    function leftToRight(parts) { return "\u2066" + parts.join("\u200e") + "\u2069" }
    function offset(entry) {
        if (entry.storedPx === undefined) return ""
        return leftToRight([number(entry.storedPx, 1), " → ", number(entry.newPx, 1), "\u00a0px"])
    }
    objectName: "historyPage"
    visible: false
    color: Theme.ground
    MouseArea { anchors.fill: parent }

    component Field: Words {
        property bool heading: false
        height: parent.height
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: heading ? Theme.captionSize : Theme.bodySize
        color: heading ? Theme.quietText : Theme.text
    }
    component Line: Item {
        id: line
        property alias when: when.text
        property alias camera: camera.text
        property alias turn: turn.text
        property alias offset: offset.text
        property alias result: result.text
        property alias drawing: picture.drawing
        property bool heading: false
        readonly property real share: (width - 4 * Theme.gap) / 100
        Row {
            anchors.fill: parent
            spacing: Theme.gap
            Field { id: when; width: 16 * line.share }
            Field { id: camera; width: 33 * line.share }
            Field { id: turn; width: 11 * line.share; heading: line.heading }
            Field { id: offset; width: 19 * line.share; heading: line.heading }
            Illustration {
                id: picture
                visible: drawing !== ""
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.length(36)
                height: width
            }
            Field { id: result; width: 21 * line.share - picture.width - Theme.gap }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.gap
        Words {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.target
            text: qsTr("History")
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            verticalAlignment: Text.AlignVCenter
        }
        Line {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.length(52)
            heading: true
            turn: qsTr("Turned by")
            offset: qsTr("Offset in the photos")
        }
        ListView {
            id: list
            objectName: "historyList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: page.status.history
            delegate: Line {
                width: list.width
                height: Theme.length(68)
                when: modelData.when
                camera: modelData.camera
                turn: qsTranslate("FoundScreen", "%1°").arg(page.number(modelData.turnDeg, 2))
                offset: page.offset(modelData)
                drawing: modelData.stored ? "done" : "attention"
                result: modelData.stored ? qsTr("Stored") : qsTr("Not stored")
                Rectangle { width: parent.width; height: 1; color: Theme.line }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.gap
            Words {
                objectName: "reportsFolder"
                Layout.fillWidth: true
                Layout.preferredHeight: Theme.bigTarget
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.Wrap
                font.pixelSize: Theme.captionSize
                color: Theme.quietText
                text: qsTr("Reports: %1").arg(page.leftToRight([page.status.reportsFolder]))
            }
            TouchButton {
                id: closeButton
                objectName: "historyCloseButton"
                Layout.preferredWidth: Math.max(implicitWidth, Theme.length(260))
                main: true
                text: qsTranslate("HowToMove", "Close")
                onClicked: page.visible = false
            }
        }
    }
}
