import QtQuick 2.15
import "../theme"

// The photos taken, in a row with places for those to come: four are always needed, and one more while they do not
// suffice.
Row {
    id: row
    property int count: 0
    property var sources: []
    property var worths: []  // for each photo: not empty when it has contributed nothing
    property bool complete: false  // no more photos will be taken
    readonly property int usual: 4
    readonly property int limit: 8
    readonly property real slotWidth: Math.min((width - (limit - 1) * spacing) / limit, height * 4 / 3)
    spacing: Theme.smallGap

    Repeater {
        model: row.limit
        Rectangle {
            readonly property bool taken: index < row.count
            readonly property bool counts: !row.worths[index]
            visible: taken || (!row.complete && index < Math.max(row.usual, row.count + 1))
            width: row.slotWidth
            height: width * 3 / 4
            anchors.verticalCenter: parent.verticalCenter
            radius: Theme.radius / 2
            color: Theme.panel
            border.width: Theme.hairline
            border.color: taken ? (counts ? Theme.done : Theme.quietText) : index === row.count ? Theme.now : Theme.line
            Behavior on border.color { ColorAnimation { duration: Theme.calmly } }
            Image {
                anchors.fill: parent
                anchors.margins: 2 * Theme.hairline
                visible: parent.taken
                source: row.sources[index] || ""
                cache: false
                fillMode: Image.PreserveAspectCrop
                opacity: status === Image.Ready ? 1 : 0
                Behavior on opacity { NumberAnimation { duration: Theme.calmly } }
            }
            Illustration {
                visible: parent.taken
                width: Math.round(parent.height * 0.36)
                height: width
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: 2 * Theme.hairline
                drawing: parent.counts ? "done" : "nothing"
            }
        }
    }
}
