import QtQuick 2.15
import "../theme"

// A text that changes only after the new text has been valid for a moment, so that it can be read.
Words {
    id: words
    property string wanted: ""

    onWantedChanged: settle.restart()
    Timer {
        id: settle
        interval: Theme.steady
        onTriggered: words.text = words.wanted
    }
}
