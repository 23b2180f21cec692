import QtQuick 2.15
import "../theme"

// A page around the two live images: the instruction above them, everything else below.
Screen {
    id: page
    default property alias content: footer.data
    property alias header: header.data
    property alias pictures: pictures.data

    Item {
        id: header
        x: Theme.margin
        y: Theme.gap
        width: page.width - 2 * Theme.margin
        height: page.layout.headerHeight - 2 * Theme.gap + Theme.smallGap
    }
    Item {
        id: pictures
        y: page.layout.pairTop
        width: page.width
        height: page.layout.pairHeight
    }
    Item {
        id: footer
        x: Theme.margin
        y: page.height - page.layout.footerHeight
        width: page.width - 2 * Theme.margin
        height: page.layout.footerHeight - Theme.gap
    }
}
