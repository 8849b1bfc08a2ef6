// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet
import Quillet.Screens

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
    required property productRow product

    required property ShippingStatusProductsView products
    required property SafeArea safeArea
    readonly property real shownHeight: row.moving ? row.products.shownHeight(row.index, row.products.reveal)
                                                   : content.height

    signal headTapped
    // The keys go to the head now.
    signal headFocused
    // The keys are to go on from the head, or back.
    signal tabbed(forward: bool)

    function focusHead() {
        (content.item as Item).forceActiveFocus(Qt.TabFocusReason)
    }

    function reportHeight() {
        if (row.moving) {
            row.products.reportHeight(row.index, content.height)
        }
    }

    height: frame.height + (row.last ? KelSpacing.small : 0)
    onMovingChanged: row.reportHeight()
    onIndexChanged: row.reportHeight()
    Component.onCompleted: row.reportHeight()

    KelPanelFrame {
        id: frame

        x: Math.round(row.safeArea.left + KelSpacing.small)
        width: Math.round(parent.width - x - row.safeArea.right - KelSpacing.small)
        height: Math.round(row.shownHeight)
        stroke: row.stroke
        fill: row.fill
        isTop: row.isHead
        isBottom: row.last || row.shownHeight < content.height

        Loader {
            id: content

            width: parent.width
            onHeightChanged: row.reportHeight()
            sourceComponent: row.isHead ? head : product
        }
    }
    Component {
        id: head

        KelPanelHead {
            id: panelHead

            title: row.title
            tone: row.tone
            expanded: row.expanded
            AccessibleState.expandable: true
            AccessibleState.expanded: row.expanded
            Keys.onTabPressed: row.tabbed(true)
            Keys.onBacktabPressed: row.tabbed(false)
            onActivated: if (!Covers.over(panelHead)) row.headTapped()
            onVisualFocusChanged: if (visualFocus) row.headFocused()
        }
    }
    Component {
        id: product

        ProductItem {
            product: row.product
            first: row.first
        }
    }
}
