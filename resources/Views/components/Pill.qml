import QtQuick 2.15
import "../theme"

// A short text over an image, with a drawing beside it if there is one.
Rectangle {
    id: pill
    property alias text: words.text
    property alias drawing: picture.drawing
    readonly property real textStart: drawing !== "" ? picture.width + Theme.gap + Theme.smallGap : Theme.margin
    width: Math.min(words.implicitWidth + textStart + Theme.margin, parent.width - 2 * Theme.margin)
    height: Math.max(words.height, picture.height) + 2 * Theme.smallGap
    radius: Theme.radius
    color: Theme.ground
    border.width: Theme.hairline
    border.color: Theme.now
    Illustration {
        id: picture
        visible: drawing !== ""
        anchors.left: parent.left
        anchors.leftMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        width: visible ? Theme.length(36) : 0
        height: width
    }
    Words {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: pill.textStart
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - pill.textStart - Theme.margin
        fontSizeMode: Text.FixedSize
        horizontalAlignment: Text.AlignHCenter
    }
}
