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
    property bool scrolled: false

    boundsBehavior: Flickable.StopAtBounds
    // The header takes its final height only when the page has its width, which is after the first layout: until
    // somebody scrolls, the list stays at its beginning.
    onOriginYChanged: if (!list.scrolled) list.contentY = list.originY
    onMovementStarted: list.scrolled = true
    model: list.status.products
    delegate: ProductsRow {
        width: ListView.view.width
        onHeadTapped: row => list.status.products.toggle(row)
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
            remember: list.status.remember
            reminder: list.status.reminder
            buttonText: list.status.goToCart
            buttonIdentifier: list.status.goToCartIdentifier
            onTapped: list.status.tapGoToCart()
        }
    }
}
