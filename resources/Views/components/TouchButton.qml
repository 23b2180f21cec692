import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "../theme"

// The main button of the page has the colour of the next action; the others are neutral.
T.Button {
    id: button
    property bool main: false
    property string drawing: ""  // shown beside the text

    implicitHeight: main ? Theme.bigTarget : Theme.target
    implicitWidth: Math.max(implicitHeight, label.implicitWidth + leftPadding + rightPadding)
    leftPadding: Theme.gap + Theme.smallGap
    rightPadding: leftPadding
    topPadding: Theme.smallGap / 2
    bottomPadding: topPadding
    font.family: Theme.family
    font.pixelSize: main ? Math.round(Theme.bodySize * 1.15) : Theme.bodySize
    font.weight: main ? Font.DemiBold : Font.Normal

    background: Rectangle {
        radius: Theme.radius
        color: button.main ? (button.down ? Theme.nowPressed : Theme.now) : (button.down ? Theme.pressed : Theme.panel)
        border.width: button.visualFocus ? 2 * Theme.hairline : (button.main ? 0 : Theme.hairline)
        border.color: button.visualFocus ? Theme.text : Theme.line
    }
    contentItem: Item {
        id: label
        implicitWidth: words.implicitWidth + (picture.visible ? picture.width + Theme.smallGap : 0)
        Illustration {
            id: picture
            visible: button.drawing !== ""
            drawing: button.drawing
            anchors.left: button.text !== "" ? parent.left : undefined
            anchors.horizontalCenter: button.text === "" ? parent.horizontalCenter : undefined
            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(button.font.pixelSize * (button.text === "" ? 2 : 1.4))
            height: width
        }
        Words {
            id: words
            anchors.fill: parent
            anchors.leftMargin: picture.visible ? picture.width + Theme.smallGap : 0
            text: button.text
            font: button.font
            color: button.main ? Theme.textOnColour : Theme.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
