import QtQuick
import KelDS
import Quillet

// The summary: slack goes between the content and the footer, and the whole scrolls when it is longer than the screen.
ScrollableView {
    id: root

    required property SaleSummaryView summary

    contentHeight: page.height
    hinted: false

    Item {
        id: page

        width: root.width
        height: Math.max(root.height, content.height + KelSpacing.semi + footer.height)

        Column {
            id: content

            width: parent.width

            KelTabs {
                width: parent.width
                titles: [root.summary.inProgressTab]
            }
            SaleSummaryHeaderItem {
                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                topPadding: KelSpacing.semi
                bottomPadding: KelSpacing.semi
                header: root.summary.headerView
            }
            HighlightedOrderItem {
                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                order: root.summary.highlightedOrderView
            }
        }
        Footer {
            id: footer

            width: parent.width
            anchors.bottom: parent.bottom
            rememberLabel: root.summary.rememberLabel
            button: root.summary.sendProductsButton
            onTapped: root.summary.tapSendProducts()
            onButtonFocused: root.contentY = root.contentHeight - root.height
        }
    }
}
