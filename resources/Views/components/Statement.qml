import QtQuick 2.15
import "../theme"

// A text of several lines: the first part is large, the rest below it is smaller.
Item {
    id: statement
    property string text
    property int size: Theme.headingSize
    property real share: 0.56  // of the height, for the first part
    readonly property int breakAt: text.indexOf("\n")
    readonly property bool parted: breakAt >= 0

    Words {
        width: parent.width
        height: statement.parted ? parent.height * statement.share : parent.height
        text: statement.parted ? statement.text.slice(0, statement.breakAt) : statement.text
        font.pixelSize: statement.size
        font.weight: Font.DemiBold
        verticalAlignment: statement.parted ? Text.AlignBottom : Text.AlignVCenter
    }
    Words {
        width: parent.width
        y: parent.height * statement.share + Theme.smallGap
        height: parent.height - y
        visible: statement.parted
        text: statement.text.slice(statement.breakAt + 1)
        color: Theme.quietText
    }
}
