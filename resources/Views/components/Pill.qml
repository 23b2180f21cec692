import QtQuick 2.15
import "../theme"

// A short text over an image.
Rectangle {
    property alias text: words.text
    width: Math.min(words.implicitWidth + 2 * Theme.margin, parent.width - 2 * Theme.margin)
    height: words.height + 2 * Theme.smallGap
    radius: Theme.radius
    color: Theme.ground
    border.width: Theme.hairline
    border.color: Theme.now
    Words {
        id: words
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.margin
        fontSizeMode: Text.FixedSize
        horizontalAlignment: Text.AlignHCenter
    }
}
