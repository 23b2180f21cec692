import QtQuick 2.15
import "drawings.js" as Drawings
import "../theme"

// One of the line drawings in drawings.js, in the theme's colours.
Canvas {
    property string drawing
    property color ink: Theme.text
    property color accent: Theme.now

    onDrawingChanged: requestPaint()
    onInkChanged: requestPaint()
    onAccentChanged: requestPaint()
    onPaint: {
        const context = getContext("2d")
        context.reset()
        if (drawing === "" || width <= 0 || height <= 0) return
        const side = Math.min(width, height)
        context.translate((width - side) / 2, (height - side) / 2)
        context.scale(side / 100, side / 100)
        context.lineWidth = 4 * Math.min(1, Math.sqrt(Theme.length(110) / side))
        Drawings.draw(drawing, context, {ink: ink, accent: accent, ground: Theme.ground, done: Theme.done})
    }
}
