// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet.Checkout

// One row of the product list, with its slice of the section's outline. While its section opens or closes, the row shows
// what of it the section has come to.
Item {
    id: row

    required property int index
    required property bool isHead
    required property string title
    required property color tone
    required property color stroke
    required property color fill
    required property bool expanded
    required property bool last
    required property bool first
    required property bool moving
    required property string quantity
    required property string description
    required property string code
    required property string points
    required property bool hasReason
    required property string reasonTag

    required property var products
    required property int sideSpacing
    readonly property real shownHeight: row.moving
        ? row.products.shownHeight(row.index, content.height, row.products.reveal) : content.height

    signal headTapped
    // The keys go to the head now.
    signal headFocused

    height: frame.height + (row.last ? row.sideSpacing : 0)

    KelPanelFrame {
        id: frame

        x: row.sideSpacing
        width: parent.width - 2 * row.sideSpacing
        height: Math.round(row.shownHeight)
        stroke: row.stroke
        fill: row.fill
        isTop: row.isHead
        isBottom: row.last || row.shownHeight < content.height

        Loader {
            id: content

            width: parent.width
            sourceComponent: row.isHead ? head : product
        }
    }
    Component {
        id: head

        KelPanelHead {
            title: row.title
            tone: row.tone
            expanded: row.expanded
            onActivated: row.headTapped()
            onVisualFocusChanged: if (visualFocus) row.headFocused()
        }
    }
    Component {
        id: product

        ProductView {
            quantity: row.quantity
            description: row.description
            code: row.code
            points: row.points
            hasReason: row.hasReason
            reasonTag: row.reasonTag
            first: row.first
        }
    }
}
