import QtQuick 2.15
import "../theme"

// Text that wraps, and shrinks to a given height instead of being cut off.
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
