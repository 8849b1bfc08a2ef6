// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet

// One list: what stands above the products is its header, what stands below them its footer, so that only the rows in
// view are ever made.
ListView {
    id: list

    required property ProductsCheckoutStatusView status
    // Read here, because types are not known inside the components below.
    readonly property ShippingStatusProductsView products: list.status.products
    readonly property rememberLabel rememberLabel: list.status.rememberLabel
    readonly property button goToCartButton: list.status.goToCartButton

    // How many products there is room for below a row. None is lower than its tile with the spacing around it.
    function roomBelow(row: Item): int {
        const room = list.contentY + list.height - row.y - KelSizes.mediumX
        return Math.ceil(Math.max(0, Math.min(room, list.height)) / (KelSizes.semiX + 2 * KelSpacing.small))
    }

    function toggle(row: Item, index: int) {
        list.products.toggle(index, list.roomBelow(row))
    }
    function tapGoToCart() {
        list.status.tapGoToCart()
    }

    objectName: "result"
    Accessible.role: Accessible.List
    boundsBehavior: Flickable.StopAtBounds
    // No row is the current one: it would be kept when it is out of view, and arrow keys would go to rows, which have
    // nothing to do. They scroll instead.
    currentIndex: -1
    keyNavigationEnabled: false
    Keys.forwardTo: [keys]
    // Rows that are being made ahead of time must not be taken away meanwhile, as closing a section does.
    cacheBuffer: 0
    model: list.products
    delegate: ProductsRow {
        id: row

        width: ListView.view.width
        products: list.products
        onHeadTapped: list.toggle(row, row.index)
        onHeadFocused: list.positionViewAtIndex(row.index, ListView.Contain)
    }
    header: ProductsHeaderItem {
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
            rememberLabel: list.rememberLabel
            button: list.goToCartButton
            onTapped: list.tapGoToCart()
            onButtonFocused: list.positionViewAtEnd()
        }
    }

    ScrollKeys {
        id: keys

        page: list
    }
}
