// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet.Views
import Quillet.Checkout

// One list: what stands above the products is its header, what stands below them its footer, so that only the rows in
// view are ever made.
ListView {
    id: list

    required property var status

    // How many products there is room for below a row.
    function roomBelow(row) {
        const room = list.contentY + list.height - row.y - KelSizes.mediumX
        return Math.ceil(Math.max(0, Math.min(room, list.height)) / list.status.leastRowHeight)
    }
    function scrollBy(distance) {
        const end = Math.max(list.originY, list.originY + list.contentHeight - list.height)
        list.contentY = Math.max(list.originY, Math.min(end, list.contentY + distance))
    }

    objectName: "result"
    boundsBehavior: Flickable.StopAtBounds
    // No row is the current one: it would be kept when it is out of view, and arrow keys would go to rows, which have
    // nothing to do. They scroll instead.
    currentIndex: -1
    keyNavigationEnabled: false
    Keys.onUpPressed: list.scrollBy(-KelSizes.large)
    Keys.onDownPressed: list.scrollBy(KelSizes.large)
    // Rows that are being made ahead of time must not be taken away meanwhile, as closing a section does.
    cacheBuffer: 0
    model: list.status.products
    delegate: ProductsRow {
        width: ListView.view.width
        sideSpacing: list.status.sideSpacing
        products: list.status.products
        onHeadTapped: list.status.products.toggle(index, list.roomBelow(this))
        onHeadFocused: list.positionViewAtIndex(index, ListView.Contain)
    }
    header: ProductsHeaderView {
        width: ListView.view.width
        status: list.status
    }
    footer: Item {
        id: end

        width: ListView.view.width
        height: KelSpacing.small + footer.height

        Footer {
            id: footer

            // Where the content is shorter than the screen the footer moves down to its bottom edge.
            y: KelSpacing.small + Math.max(0, list.height - (end.y - list.originY) - end.height)
            width: parent.width
            rememberLabel: list.status.rememberLabel
            button: list.status.goToCartButton
            onTapped: list.status.tapGoToCart()
            onButtonFocused: list.positionViewAtEnd()
        }
    }
}
