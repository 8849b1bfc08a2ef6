// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet.Checkout

// One row of the product list, with its slice of the section's outline. While its section opens or closes, the row shows
// the upper part of itself.
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

    property int sideSpacing
    property real reveal: 1

    signal headTapped

    height: frame.height + (row.last ? row.sideSpacing : 0)

    KelPanelFrame {
        id: frame

        x: row.sideSpacing
        width: parent.width - 2 * row.sideSpacing
        height: Math.round(content.height * (row.moving ? row.reveal : 1))
        stroke: row.stroke
        fill: row.fill
        isTop: row.isHead
        isBottom: row.last

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
