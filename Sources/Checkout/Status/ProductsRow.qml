// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet.Checkout

// One row of the product list. The panel's outline runs round all rows of a section, so each row draws its slice of it:
// a frame that reaches out of the row where the panel goes on, cut off at the row's edge.
Item {
    id: row

    required property int index
    required property bool isHead
    required property string title
    required property bool sent
    required property bool expanded
    required property bool last
    required property bool first
    required property string quantity
    required property string description
    required property string code
    required property string points
    required property bool hasReason

    signal headTapped(int row)

    readonly property color tone: row.sent ? KelColors.success : KelColors.alert
    readonly property int gap: row.last ? KelSpacing.small : 0

    height: content.height + row.gap

    Item {
        x: KelSpacing.small
        width: parent.width - 2 * KelSpacing.small
        height: content.height
        clip: true

        Rectangle {
            y: row.isHead ? 0 : -KelRadius.large
            width: parent.width
            height: parent.height + (row.isHead ? 0 : KelRadius.large) + (row.last ? 0 : KelRadius.large)
            radius: KelRadius.large
            color: "transparent"
            border.width: 1
            border.color: row.sent ? PanelColors.sent : PanelColors.notSent
        }
        Loader {
            id: content

            width: parent.width
            sourceComponent: row.isHead ? head : product
        }
    }
    Component {
        id: head

        PanelHead {
            title: row.title
            tone: row.tone
            expanded: row.expanded
            onClicked: row.headTapped(row.index)
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
            first: row.first
        }
    }
}
