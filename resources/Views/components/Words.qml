import QtQuick 2.15
import "../theme"

// Text that wraps, and shrinks rather than being cut off where its height is given.
Text {
    color: Theme.text
    font.family: Theme.family
    font.pixelSize: Theme.bodySize
    minimumPixelSize: Theme.smallestSize
    fontSizeMode: Text.Fit
    wrapMode: Text.WordWrap
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
}
