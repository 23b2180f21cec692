import QtQuick 2.15
import ImageRenderTypes 1.0
import "components"
import "theme"

// The five views, and the cover over the rest of the window. Views paint underneath everything else, each into the
// rectangle of its parent, whose y counts from the lower edge of the window.
Item {
    id: pictures
    property CalibrationStatus status
    property PictureLayout layout
    property alias refinementView: refinementView
    property alias dragging: touch.dragging
    signal touchDown(int x, int y)
    signal touchMove(int x, int y)
    signal touchUp(int x, int y)

    readonly property bool paged: status.paged && !status.foundShown
    readonly property bool refining: paged && status.state === status.states.refining
    readonly property string view: {
        const s = status.states
        if (!paged || status.state === s.firstOpened) return "none"
        if (status.state === s.introduction || status.state === s.tutorial) return "single"
        return status.state === s.refining ? "full" : "pair"
    }
    readonly property var shown: {
        if (view === "none") return []
        if (view === "single") return [layout.single]
        if (view === "full") return [layout.full]
        return layout.mirrored ? [layout.infrared, layout.colour] : [layout.colour, layout.infrared]
    }

    component Area: Item {
        property rect place
        x: place.x
        y: pictures.height - place.y - place.height
        width: place.width
        height: place.height
    }
    Area {
        place: pictures.layout.single
        ColorImageRendererItem { objectName: "introImageView"; anchors.fill: parent }
    }
    Area {
        place: pictures.layout.colour
        ColorImageRendererItem { objectName: "calibColorView"; anchors.fill: parent }
    }
    Area {
        place: pictures.layout.infrared
        InfraredImageRendererItem { objectName: "calibInfraredView"; anchors.fill: parent }
    }
    Area {
        place: pictures.layout.single
        DepthColorOverlayRenderer { objectName: "refinementWalkthroughView"; anchors.fill: parent }
    }
    Area {
        place: pictures.layout.full
        DepthColorOverlayRenderer { id: refinementView; objectName: "refinementView"; anchors.fill: parent }
        MouseArea {
            id: touch
            objectName: "refinementTouchArea"
            property int fromX: 0
            property int fromY: 0
            property int reportedX: 0  // the signal for x is also sent for vertical movements
            property bool dragging: false  // the touch is no longer a tap
            anchors.fill: parent
            enabled: pictures.refining
            function end(x, y) {
                if (dragging) pictures.touchUp(x, y)
                dragging = false
            }
            onPressed: {
                dragging = false
                fromX = reportedX = Math.round(mouse.x)
                fromY = Math.round(mouse.y)
            }
            onReleased: end(Math.round(mouse.x), Math.round(mouse.y))
            onCanceled: end(reportedX, 0)  // by the system, or by a page that has appeared meanwhile
            onMouseXChanged: {
                const x = Math.round(mouseX)
                if (!pressed || x === reportedX) return
                if (!dragging) {
                    if (Math.abs(x - fromX) < Theme.tapTravel) return
                    dragging = true
                    pictures.touchDown(fromX, fromY)  // the drag starts at the initial touch, so that the image stays
                                                      // under the finger
                }
                reportedX = x
                pictures.touchMove(x, Math.round(mouseY))
            }
        }
    }

    Ground {
        anchors.fill: parent
        holes: pictures.shown
        corner: pictures.refining ? 0 : Theme.radius
    }
}
