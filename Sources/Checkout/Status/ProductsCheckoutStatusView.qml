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

    function beginAtHeader() {
        if (list.contentY - list.originY < list.headerItem.height) {
            list.positionViewAtBeginning()
        }
    }
    // How many products there is room for below a row.
    function roomBelow(row) {
        const room = list.contentY + list.height - row.y - KelSizes.mediumX
        return Math.max(0, Math.ceil(room / list.status.leastRowHeight))
    }

    objectName: "result"
    boundsBehavior: Flickable.StopAtBounds
    // Rows that are being made ahead of time must not be taken away meanwhile, as closing a section does.
    cacheBuffer: 0
    model: list.status.products
    delegate: ProductsRow {
        width: ListView.view.width
        sideSpacing: list.status.sideSpacing
        products: list.status.products
        onHeadTapped: list.status.products.toggle(index, list.roomBelow(this))
    }
    header: ProductsHeaderView {
        width: ListView.view.width
        status: list.status
        // It takes its final height in the course of the first layout, and the list would then begin in the middle of
        // it. A list must not be moved while it lays itself out.
        onHeightChanged: Qt.callLater(list.beginAtHeader)
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
            button: list.status.goToCartButton
            onTapped: list.status.tapGoToCart()
        }
    }
}
