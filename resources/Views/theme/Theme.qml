pragma Singleton
import QtQuick 2.15

// Every colour, size and duration of the interface: a dark neutral background, one warm colour for the next action and
// one for completed steps. Sizes are relative to the window, so that the interface looks the same on every screen.
QtObject {
    property real windowWidth: 1280
    property real windowHeight: 800
    readonly property real unit: Math.min(windowWidth / 1280, windowHeight / 800)

    // Every text colour has a contrast of 7:1 or more on the ground and on panels, for reading in sunlight.
    readonly property color ground: "#12161a"
    readonly property color panel: "#1c2228"
    readonly property color line: "#7d8a95"      // outlines, which tell buttons and empty places from the ground
    readonly property color pressed: "#3a444d"   // a neutral button under the finger
    readonly property color text: "#f4f6f7"
    readonly property color quietText: "#d0d8dd"
    readonly property color now: "#ffb030"
    readonly property color nowPressed: "#e39b20"
    readonly property color done: "#63d6a4"
    readonly property color textOnColour: "#12161a"
    readonly property color flash: "#ffffff"
    readonly property real veil: 0.88  // opacity of panels over an image

    // On Windows the translation selects the font for its script; other desktops select it by the language.
    //: The font that Windows uses for this language.
    readonly property string windowsFamily: qsTr("Segoe UI")
    readonly property string family: Qt.platform.os === "windows" ? windowsFamily : Qt.application.font.family
    readonly property int instructionSize: size(42, 20)
    readonly property int headingSize: size(34, 18)
    readonly property int bodySize: size(23, 16)
    readonly property int captionSize: size(19, 16)
    readonly property int smallestSize: size(16, 12)  // down to which long translations may shrink
    readonly property real lineHeight: 1.25  // line spacing relative to the font size

    readonly property real margin: length(24)
    readonly property real gap: length(16)
    readonly property real smallGap: length(8)
    readonly property real radius: length(12)
    readonly property real hairline: Math.max(1, length(2))
    readonly property int target: size(60, 48)  // of every touch target
    readonly property int bigTarget: size(76, 48)
    readonly property int tapTravel: size(12, 12)  // a shorter movement is not a drag

    readonly property int briefly: 180
    readonly property int calmly: 400
    readonly property int slowly: 1600
    readonly property int confirmation: 1500
    readonly property int longConfirmation: 3500  // of a photo that the user should know more about
    readonly property int beforeDemonstration: 800
    readonly property int demonstration: 1400
    readonly property int untilDark: 300  // shorter darkness is not reported
    readonly property int untilLit: 500   // shorter light does not end the notice
    readonly property int lastingLight: 3000  // after which the light check continues by itself
    readonly property int steady: 250  // an instruction valid for a shorter time is not shown

    function length(atDesignSize) { return Math.round(atDesignSize * unit) }
    function size(atDesignSize, atLeast) { return Math.max(atLeast, length(atDesignSize)) }
}
