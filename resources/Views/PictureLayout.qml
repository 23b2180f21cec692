import QtQuick 2.15
import "theme"

// The positions of the camera images on the pages, in pixels of the window counted from its upper edge. Pages arrange
// their content around them.
QtObject {
    property real width: 0
    property real height: 0
    property bool mirrored: false
    property bool wideColour: false  // the rear camera's images are 16:9, all others 4:3
    property real exitSpace: 0       // kept free at the end of every header

    readonly property real headerHeight: Math.max(Theme.length(148), Theme.target + Theme.gap)
    readonly property real footerHeight: Theme.length(124) + Theme.gap

    // Beside a panel: introduction and tutorial.
    readonly property real panelWidth: Math.round(width * 0.42)
    readonly property rect single: {
        const w = Math.min(width - panelWidth - 2 * Theme.margin, (height - 2 * Theme.margin) * 4 / 3)
        return placed(Theme.margin, (height - w * 3 / 4) / 2, w, w * 3 / 4)
    }

    // Side by side, at the same height.
    readonly property real colourAspect: wideColour ? 16 / 9 : 4 / 3
    readonly property real pairHeight: Math.min(height - headerHeight - footerHeight - Theme.gap,
                                                (width - 2 * Theme.margin - Theme.gap) / (colourAspect + 4 / 3))
    readonly property real pairWidth: pairHeight * (colourAspect + 4 / 3) + Theme.gap
    readonly property real pairTop: headerHeight + (height - headerHeight - footerHeight - Theme.gap - pairHeight) / 2
    readonly property rect colour: placed((width - pairWidth) / 2, pairTop, pairHeight * colourAspect, pairHeight)
    readonly property rect infrared: placed((width + pairWidth) / 2 - pairHeight * 4 / 3, pairTop,
                                            pairHeight * 4 / 3, pairHeight)

    // As wide as the window, so that a drag across the window is a drag across the image.
    readonly property rect full: placed(0, (height - width / colourAspect) / 2, width, width / colourAspect)

    function placed(x, y, w, h) {
        return Qt.rect(Math.round(mirrored ? width - x - w : x), Math.round(y), Math.round(w), Math.round(h))
    }
}
